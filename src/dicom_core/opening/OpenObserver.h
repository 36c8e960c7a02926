// What an open ends in, what it asks of the program around it, and what a tree asks of whoever
// shows it. Main thread only.
#pragma once
#include "dicom_core/opening/RecentDocuments.h"
#include "util/StatusCodes.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class ZELDcmTree;
class ZELSequenceProxy;
class dk_SequenceBase;

class OpenObserver {
public:
    virtual ~OpenObserver() = default;
    // A window that shows `document` is there.
    [[nodiscard]] virtual bool docIsAlreadyOpen(const ZELRecentDocument& document) = 0;
    virtual void bringDocWindowToFront(const ZELRecentDocument& document) = 0;
    // `name` is bytes: what could not be opened.
    virtual void ShowAlertForError(QvxStatus code, const std::string& name) = 0;
    // A finished tree, localizers split off. `represented` is the path that stands for the window.
    virtual void treeIsReady(std::unique_ptr<ZELDcmTree> tree, const std::string& represented,
                             const ZELRecentDocument& document) = 0;
};

// The program around an open. The plain answers are those of one without windows.
class OpenHost {
public:
    virtual ~OpenHost() = default;
    // Lets the program's events in while a request runs; nothing to do: an empty function.
    [[nodiscard]] virtual std::function<void()> eventServer() { return nullptr; }
    // Paths that the user picked, and the folder that the panel ended in; none on Cancel.
    struct Picked {
        std::vector<std::string> paths;
        std::string folder;
    };
    [[nodiscard]] virtual std::optional<Picked> runOpenPanel(const std::string& startFolder)
    {
        static_cast<void>(startFolder);
        return std::nullopt;
    }
    [[nodiscard]] virtual bool mainWindowIsViewer() { return true; }
    virtual void callLater(double seconds, std::function<void()> call)
    {
        static_cast<void>(seconds);
        call();
    }
};

// What a tree asks of whoever keeps proxies of its sequences.
class SequenceProxies {
public:
    virtual ~SequenceProxies() = default;
    [[nodiscard]] virtual ZELSequenceProxy* ProxyOf(dk_SequenceBase* sequence) = 0;  // or null
    virtual void EnsureProxyOf(dk_SequenceBase* sequence) = 0;
    [[nodiscard]] virtual bool HasCrops(dk_SequenceBase* sequence) = 0;
};
