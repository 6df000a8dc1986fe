// The output directory of a run: every file the run makes is written here
// whole and once, checked, and never left half-written in place of a good
// one; files may be written from several threads at once. A file that is
// already there is replaced by a temporary file beside
// it, renamed over it only when every byte has reached it; a new file that
// cannot be written whole is removed.
#pragma once

#include <condition_variable>
#include <deque>
#include <filesystem>
#include <map>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

namespace morvane {

class OutputDirectory {
 public:
  explicit OutputDirectory(std::filesystem::path dir) : dir_(std::move(dir)) {}
  ~OutputDirectory() { Settle(); }
  OutputDirectory(const OutputDirectory&) = delete;
  OutputDirectory& operator=(const OutputDirectory&) = delete;

  const std::filesystem::path& Path() const { return dir_; }

  // Writes `bytes` as the file `name` of the directory, or at `name` when it
  // holds a directory part. False with a message naming the file when any part of the
  // write fails (a full disk, no permission, a file size limit); the old file
  // of that name, if any, is then left as it was.
  bool Write(const std::filesystem::path& name, std::string_view bytes, std::string* err);
  // Writes the file the same way on a thread of the directory's own; the
  // call returns at once. `object` is what the file is written for.
  void WriteLater(std::string object, std::filesystem::path name, std::string bytes);
  // Waits until every file given to WriteLater is written; the objects whose
  // file could not be written, each with the message.
  std::vector<std::pair<std::string, std::string>> Settle();
  // Copies a file into the directory the same way.
  bool Copy(const std::filesystem::path& from, const std::filesystem::path& name, std::string* err);

  // Every failed write of the run, one message each.
  const std::vector<std::string>& Failures() const { return failures_; }
  // Files written so far.
  int WrittenCount() const { return written_; }

 private:
  std::filesystem::path Target(const std::filesystem::path& name) const;
  // Writes the queued files: until Settle, or those queued now.
  void WriteQueued(bool untilSettled);

  std::filesystem::path dir_;
  std::mutex lock_;  // over the record of what was written
  std::vector<std::string> failures_;
  int written_ = 0;

  struct Queued {
    size_t order;  // the place of the write among those queued
    std::string object;
    std::filesystem::path name;
    std::string bytes;
  };
  std::mutex queueLock_;  // over the queue, the writer's state and its failures
  std::condition_variable queueChanged_;
  std::deque<Queued> queue_;
  bool settling_ = false;
  std::thread writer_;
  size_t queuedCount_ = 0;
  // The failed writes by their order, which two threads may end in another.
  std::map<size_t, std::pair<std::string, std::string>> queuedFailures_;
};

// Writes a file whole, as OutputDirectory::Write does, outside any run.
bool WriteFileWhole(const std::filesystem::path& path, std::string_view bytes, std::string* err);

}  // namespace morvane
