// What looks for newer versions of the program, if the program has such a thing. Main thread only.
#pragma once
#include <QDateTime>
#include <functional>
#include <optional>

class UpdateService {
public:
    virtual ~UpdateService() = default;
    [[nodiscard]] virtual std::optional<QDateTime> lastCheck() const = 0;
    // Returns at once; `loaded` is called when the result is there, unless the service goes first.
    virtual void check(std::function<void()> loaded) = 0;
};
