// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/output_file.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lettriner::tools {
namespace {

std::string failed(const std::string& path, const char* what, int error) {
    return "cannot " + std::string(what) + " " + path + ": " + std::strerror(error);
}

// A half-written file must not pass for a whole one: it goes, with the message.
std::string abandoned(int fd, const std::string& path, int error) {
    close(fd);
    unlink(path.c_str());
    return failed(path, "write", error);
}

} // namespace

std::string writeNewFile(const std::string& path, std::string_view bytes) {
    struct stat existing {};
    if (lstat(path.c_str(), &existing) == 0) {
        if (!S_ISREG(existing.st_mode))
            return "refusing to write " + path + ": it exists and is not a regular file";
        if (unlink(path.c_str()) != 0)
            return failed(path, "remove the old", errno);
    } else if (errno != ENOENT) {
        return failed(path, "inspect", errno);
    }
    // O_EXCL: whatever appears at the path between the check and here (a link
    // planted in the meantime) makes the open fail instead of being followed.
    const int fd =
        open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC | O_NOCTTY, 0644);
    if (fd < 0)
        return failed(path, "create", errno);
    std::size_t written = 0;
    while (written < bytes.size()) {
        const ssize_t n = write(fd, bytes.data() + written, bytes.size() - written);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            return abandoned(fd, path, n < 0 ? errno : ENOSPC);
        written += static_cast<std::size_t>(n);
    }
    // On disk before the package moves it over the old list.
    if (fsync(fd) != 0)
        return abandoned(fd, path, errno);
    if (close(fd) != 0) {
        const int error = errno;
        unlink(path.c_str());
        return failed(path, "write", error);
    }
    return {};
}

} // namespace lettriner::tools
