// Checked, whole-file writes into the output directory.
#include "platform/output_directory.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "platform/text_file.h"

namespace morvane {

namespace fs = std::filesystem;

namespace {

std::string Reason(int error) { return std::strerror(error != 0 ? error : EIO); }

// Writes every byte, going on after short writes and interruptions.
bool WriteAll(int fd, std::string_view bytes, int* error) {
  while (!bytes.empty()) {
    const ssize_t n = ::write(fd, bytes.data(), bytes.size());
    if (n < 0) {
      if (errno == EINTR) continue;
      *error = errno;
      return false;
    }
    if (n == 0) {
      *error = ENOSPC;
      return false;
    }
    bytes.remove_prefix(static_cast<size_t>(n));
  }
  return true;
}

}  // namespace

bool WriteFileWhole(const fs::path& path, std::string_view bytes, std::string* err) {
  // A file that is not there yet is written in place: a failed write
  // removes it again. A file that is there keeps its old bytes until the new
  // ones are complete in a temporary file beside it (in the same directory,
  // so that the rename cannot cross file systems).
  fs::path temp = path;
  temp += ".morvane-part";
  bool fresh = true;
  int fd = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
  if (fd < 0 && errno == EEXIST) {
    fresh = false;
    fd = ::open(temp.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
  }
  if (fd < 0) {
    if (err) *err = "cannot write " + path.string() + ": " + Reason(errno);
    return false;
  }
  int error = 0;
  bool ok = WriteAll(fd, bytes, &error);
  if (::close(fd) != 0 && ok) {
    ok = false;
    error = errno;
  }
  if (ok && !fresh && ::rename(temp.c_str(), path.c_str()) != 0) {
    ok = false;
    error = errno;
  }
  if (!ok) {
    ::unlink(fresh ? path.c_str() : temp.c_str());
    if (err) *err = "cannot write " + path.string() + ": " + Reason(error);
  }
  return ok;
}

fs::path OutputDirectory::Target(const fs::path& name) const {
  return name.has_parent_path() ? name : dir_ / name;
}

bool OutputDirectory::Write(const fs::path& name, std::string_view bytes, std::string* err) {
  std::string why;
  const bool ok = WriteFileWhole(Target(name), bytes, &why);
  std::lock_guard<std::mutex> hold(lock_);
  if (!ok) {
    failures_.push_back(why);
    if (err) *err = why;
    return false;
  }
  ++written_;
  return true;
}

void OutputDirectory::WriteLater(std::string object, fs::path name, std::string bytes) {
  std::lock_guard<std::mutex> hold(queueLock_);
  queue_.push_back({queuedCount_++, std::move(object), std::move(name), std::move(bytes)});
  if (!writer_.joinable()) writer_ = std::thread([this] { WriteQueued(true); });
  queueChanged_.notify_one();
}

void OutputDirectory::WriteQueued(bool untilSettled) {
  std::unique_lock<std::mutex> hold(queueLock_);
  for (;;) {
    if (untilSettled) queueChanged_.wait(hold, [this] { return !queue_.empty() || settling_; });
    if (queue_.empty()) return;
    Queued next = std::move(queue_.front());
    queue_.pop_front();
    hold.unlock();
    std::string err;
    const bool ok = Write(next.name, next.bytes, &err);
    hold.lock();
    if (!ok)
      queuedFailures_.emplace(next.order, std::make_pair(std::move(next.object), std::move(err)));
  }
}

std::vector<std::pair<std::string, std::string>> OutputDirectory::Settle() {
  {
    std::lock_guard<std::mutex> hold(queueLock_);
    settling_ = true;
    queueChanged_.notify_one();
  }
  // What the writer has not taken yet is written here, beside it.
  WriteQueued(false);
  if (writer_.joinable()) writer_.join();
  std::lock_guard<std::mutex> hold(queueLock_);
  settling_ = false;
  std::vector<std::pair<std::string, std::string>> failures;
  for (auto& [order, failure] : queuedFailures_) failures.push_back(std::move(failure));
  queuedFailures_.clear();
  return failures;
}

bool OutputDirectory::Copy(const fs::path& from, const fs::path& name, std::string* err) {
  std::string bytes;
  std::string why;
  if (!ReadFileBytes(from, &bytes, &why)) {
    std::lock_guard<std::mutex> hold(lock_);
    failures_.push_back(why);
    if (err) *err = why;
    return false;
  }
  return Write(name, bytes, err);
}

}  // namespace morvane
