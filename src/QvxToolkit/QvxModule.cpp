#include "QvxToolkit/QvxModule.h"

#include <dlfcn.h>
#include <map>
#include <mutex>
#include <unistd.h>

namespace {

// <folder of the program>/../lib/zelora: the same in a build tree and in an installed one.
std::string ModuleFolder()
{
    std::string path(4096, '\0');
    const ssize_t length = readlink("/proc/self/exe", path.data(), path.size());
    path.resize(length > 0 ? static_cast<std::size_t>(length) : 0);
    const std::size_t slash = path.rfind('/');
    return (slash == std::string::npos ? std::string(".") : path.substr(0, slash)) +
           "/../lib/zelora/";
}

// Opened once, never closed: libraries keep pointers into themselves.
void* ModuleHandle(const std::string& module, std::string* why)
{
    static std::mutex sMutex;
    static std::map<std::string, void*> sHandles;
    const std::lock_guard lock(sMutex);
    void*& handle = sHandles[module];
    if (!handle) {
        const std::string path = ModuleFolder() + "codec-" + module + ".so";
        handle = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
        if (!handle && why) {
            const char* reason = dlerror();
            *why = "the decoder " + module + " can't be loaded: " + (reason ? reason : "unknown");
        }
    }
    return handle;
}

}  // namespace

void* QvxModuleFunction(const char* module, const char* function, std::string* why)
{
    void* handle = ModuleHandle(module, why);
    if (!handle)
        return nullptr;
    void* found = dlsym(handle, function);
    if (!found && why)
        *why = std::string("the decoder ") + module + " has no " + function;
    return found;
}
