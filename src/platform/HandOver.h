// One process for each place that the program is started from: a later start hands its paths to the
// one that runs, over a socket in a folder of the user's, and ends. Paths are bytes. Main thread
// only.
#pragma once
#include <functional>
#include <memory>
#include <string>
#include <vector>

class HandOver {
public:
    // Whether the paths are taken.
    using Received = std::function<bool(std::vector<std::string> paths)>;

    virtual ~HandOver() = default;
    // From now on, from the event loop; what came before waits until then.
    virtual void setReceived(Received received) = 0;
};

// Null: another process of that place runs and has taken the paths, which are absolute. Otherwise
// this one is the one that others hand over to, until the object goes. One that ends just now is
// waited for; one that doesn't answer within `patience_ms` is given up, and takes nothing any more,
// and this one goes on without others.
[[nodiscard]] std::unique_ptr<HandOver> HandOverOrStart(const std::string& folder,
                                                        const std::string& place,
                                                        const std::vector<std::string>& paths,
                                                        int patience_ms = 5000);
