// Which media are slow, and may go away.
#include "dicom_core/opening/CacheCopy.h"
#include "platform/Volumes.h"
#include "prefs/Prefs.h"

bool U_IsOnNetworkVolume(const std::string& path)
{
    VolumeFacts volume;
    return !VolumeOfPath(path, &volume) || volume.fIsNetwork;
}

bool U_IsOnSlowVolumeBase(const std::string& path)
{
    VolumeFacts volume;
    if (!VolumeOfPath(path, &volume) || volume.fIsRoot)
        return false;
    return volume.fIsOptical || volume.fIsEjectable;
}

bool U_IsOnSlowVolume(const std::string& path)
{
    return (prefs_CopyRemoteFilesToDisk() && U_IsOnNetworkVolume(path)) ||
           U_IsOnSlowVolumeBase(path);
}
