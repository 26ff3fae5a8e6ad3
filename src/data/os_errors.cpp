#include "data/os_errors.h"

#include <cerrno>
#include <system_error>

#include "core/fault.h"

namespace tamrix {

long FaultNumberForErrno(int error, const std::filesystem::path& path) {
  switch (error) {
    case ENOENT: {
      std::error_code ignored;
      const auto folder = path.parent_path();
      const bool folderThere = folder.empty() || std::filesystem::is_directory(folder, ignored);
      return folderThere ? kFileNotFound : kPathNotFound;
    }
    case ENOTDIR: return kPathNotFound;
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:
    case EEXIST:
    case ENOTEMPTY: return kPathFileAccessError;
    case EBUSY:
    case ETXTBSY: return kPermissionDenied;
    case ENOSPC:
    case EDQUOT: return kDiskFull;
    case EMFILE:
    case ENFILE: return kTooManyFiles;
    case ENAMETOOLONG:
    case EINVAL: return kBadFileNameOrNumber;
    case ENXIO:
    case ENODEV: return kDeviceUnavailable;
    default: return kDeviceIoError;
  }
}

void ThrowErrno(int error, const std::filesystem::path& path) { Throw(FaultNumberForErrno(error, path)); }

}  // namespace tamrix
