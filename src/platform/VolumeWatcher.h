// Tells when a volume is mounted, as the desktop's disk service reports it (org.freedesktop.UDisks2
// on the system bus).
#pragma once
#include <functional>
#include <memory>
#include <string>
#include <vector>

class VolumeWatcher {
public:
    virtual ~VolumeWatcher() = default;
    // False if there is no bus to listen on: nothing will ever be reported.
    [[nodiscard]] virtual bool IsWatching() const = 0;
};

// Called with each mount point that was not mounted before (bytes), from the event loop of the
// thread that made the watcher; never after the watcher is gone.
using VolumeMounted = std::function<void(const std::string& mountPoint)>;

// Needs a QCoreApplication with a running event loop to report anything. Copes without a bus, and
// with a disk service that starts later. `busAddress` is for tests; empty is the system bus.
[[nodiscard]] std::unique_ptr<VolumeWatcher> NewVolumeWatcher(VolumeMounted callback,
                                                              const std::string& busAddress = {});

// Which of the mount points that a disk reports are new. The service repeats whole lists, and
// says nothing of what was mounted before the program started.
class MountPointLedger {
public:
    explicit MountPointLedger(std::vector<std::string> mountedAtStart);
    // `reported` is one disk's present list, `mountedNow` every mount point of the system: what
    // stands in neither has gone, and counts as new when it comes again.
    [[nodiscard]] std::vector<std::string> NewOnes(const std::vector<std::string>& reported,
                                                   const std::vector<std::string>& mountedNow);

private:
    std::vector<std::string> fKnown;
};
