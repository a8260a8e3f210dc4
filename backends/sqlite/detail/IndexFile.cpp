#include "detail/IndexFile.hpp"

#include <cerrno>
#include <system_error>

#include <sys/stat.h>

#include "detail/Failure.hpp"

namespace solvane::sqlite {
namespace {

namespace fs = std::filesystem;

Failure cannotOpen(const fs::path& file, const std::string& why) {
  return {SQLiteIndexError::cannotOpen, "The search index " + file.string() +
                                            " cannot be opened (" + why +
                                            "). Choose a file in a folder that you may write to."};
}

// `created` is what a system call that makes something returned. The mode is set once more because
// the umask may have taken rights away from the user.
void finishCreation(int created, const fs::path& path, mode_t mode, const fs::path& file) {
  if (created == 0) created = ::chmod(path.c_str(), mode);
  if (created == 0) return;
  const int reason = errno;
  if (reason != EEXIST) throw cannotOpen(file, std::system_category().message(reason));
}

void makePrivateFolders(const fs::path& folder, const fs::path& file) {
  std::error_code error;
  if (folder.empty() || fs::exists(folder, error)) return;
  makePrivateFolders(folder.parent_path(), file);
  finishCreation(::mkdir(folder.c_str(), S_IRWXU), folder, S_IRWXU, file);
}

std::uintmax_t sizeOf(const fs::path& file) {
  std::error_code error;
  const auto size = fs::file_size(file, error);
  return error ? 0 : size;
}

}  // namespace

std::string prepareFile(const fs::path& file) {
  if (file.empty() || file.native().find('\0') != std::string::npos) {
    throw cannotOpen(file, "this is no file name");
  }
  std::error_code error;
  const auto path = fs::absolute(file, error);
  if (error) throw cannotOpen(file, error.message());
  makePrivateFolders(path.parent_path(), path);
  // Made without opening it: closing any descriptor of a file that this process has open as a
  // database would let go of the database's locks.
  constexpr mode_t mode = S_IRUSR | S_IWUSR;
  finishCreation(::mknod(path.c_str(), S_IFREG | mode, 0), path, mode, path);
  return path.string();
}

std::uintmax_t bytesOnDisk(const std::string& file) { return sizeOf(file) + sizeOf(file + "-wal"); }

}  // namespace solvane::sqlite
