// The child process that reads a Jet file, and the message that carries its
// result back: a status byte ('O' read, 'E' refused with a reason) and then
// the contents as length-prefixed fields.
#include "platform/jet_guarded_read.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <cstring>

namespace morvane {

namespace fs = std::filesystem;

namespace {

class Writer {
 public:
  void Number(uint32_t n) {
    for (int i = 0; i < 4; ++i) out_ += static_cast<char>((n >> (8 * i)) & 0xFF);
  }
  void Text(const std::string& s) {
    Number(static_cast<uint32_t>(s.size()));
    out_ += s;
  }
  std::string Take() { return std::move(out_); }

 private:
  std::string out_;
};

class Reader {
 public:
  explicit Reader(std::string_view in) : in_(in) {}
  bool Number(uint32_t* n) {
    if (in_.size() - pos_ < 4) return false;
    *n = 0;
    for (int i = 0; i < 4; ++i)
      *n |= static_cast<uint32_t>(static_cast<unsigned char>(in_[pos_ + i])) << (8 * i);
    pos_ += 4;
    return true;
  }
  bool Int(int* n) {
    uint32_t u = 0;
    if (!Number(&u)) return false;
    *n = static_cast<int>(static_cast<int32_t>(u));
    return true;
  }
  bool Text(std::string* s) {
    uint32_t n = 0;
    if (!Number(&n) || in_.size() - pos_ < n) return false;
    s->assign(in_.substr(pos_, n));
    pos_ += n;
    return true;
  }
  // A count of items that each take at least `minimum` bytes: more than the
  // rest of the message can hold means the message is damaged.
  bool Count(uint32_t* n, size_t minimum) {
    return Number(n) && *n <= (in_.size() - pos_) / minimum;
  }
  bool AtEnd() const { return pos_ == in_.size(); }

 private:
  std::string_view in_;
  size_t pos_ = 0;
};

bool WriteAll(int fd, const std::string& data) {
  size_t done = 0;
  while (done < data.size()) {
    const ssize_t n = write(fd, data.data() + done, data.size() - done);
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) return false;
    done += static_cast<size_t>(n);
  }
  return true;
}

// Reads until the other end closes. False when the deadline passes first.
bool ReadAll(int fd, std::chrono::steady_clock::time_point deadline, std::string* data) {
  char buffer[65536];
  for (;;) {
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
        deadline - std::chrono::steady_clock::now());
    if (left.count() <= 0) return false;
    pollfd p{fd, POLLIN, 0};
    const int ready = poll(&p, 1, static_cast<int>(left.count()));
    if (ready < 0 && errno == EINTR) continue;
    if (ready <= 0) return false;
    const ssize_t n = read(fd, buffer, sizeof buffer);
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) return true;
    data->append(buffer, static_cast<size_t>(n));
  }
}

// The size of the process's address space in bytes, 0 when it cannot be read.
size_t AddressSpaceSize() {
  const int fd = open("/proc/self/statm", O_RDONLY);
  if (fd < 0) return 0;
  char text[64] = {};
  const ssize_t n = read(fd, text, sizeof text - 1);
  close(fd);
  size_t pages = 0;
  for (ssize_t i = 0; i < n && text[i] >= '0' && text[i] <= '9'; ++i)
    pages = pages * 10 + static_cast<size_t>(text[i] - '0');
  const long pageSize = sysconf(_SC_PAGESIZE);
  return pageSize > 0 ? pages * static_cast<size_t>(pageSize) : 0;
}

// Caps the child's address space at what it has now plus `extra`.
void LimitMemory(size_t extra) {
  const size_t now = AddressSpaceSize();
  if (now == 0) return;
  rlimit limit{};
  limit.rlim_cur = limit.rlim_max = static_cast<rlim_t>(now + extra);
  setrlimit(RLIMIT_AS, &limit);
}

// The child's whole life: libmdb's complaints about the file go nowhere, the
// result goes down the pipe, and the child ends without running the parent's
// exit handlers.
[[noreturn]] void RunChild(const fs::path& file, int fd, size_t memoryLimit,
                           JetContentsReader reader) {
  const int devnull = open("/dev/null", O_WRONLY);
  if (devnull >= 0) {
    dup2(devnull, STDOUT_FILENO);
    dup2(devnull, STDERR_FILENO);
  }
  LimitMemory(memoryLimit);
  int code = 0;
  try {
    JetContents contents;
    std::string why;
    const std::string message =
        reader(file, &contents, &why) ? "O" + EncodeJetContents(contents) : "E" + why;
    code = WriteAll(fd, message) ? 0 : 1;
  } catch (...) {
    code = 1;
  }
  _exit(code);
}

}  // namespace

std::string EncodeJetContents(const JetContents& c) {
  Writer w;
  w.Number(static_cast<uint32_t>(c.Containers.size()));
  for (const auto& [name, docs] : c.Containers) {
    w.Text(name);
    w.Number(static_cast<uint32_t>(docs.size()));
    for (const auto& d : docs) w.Text(d);
  }
  w.Number(static_cast<uint32_t>(c.Tables.size()));
  for (const auto& t : c.Tables) {
    w.Text(t.Name);
    w.Number(t.Linked ? 1 : 0);
    w.Text(t.Connect);
    w.Text(t.SourceTable);
    w.Number(static_cast<uint32_t>(t.Fields.size()));
    for (const auto& f : t.Fields) {
      w.Text(f.Name);
      w.Number(static_cast<uint32_t>(f.Type));
      w.Number(static_cast<uint32_t>(f.Size));
    }
  }
  w.Number(static_cast<uint32_t>(c.Queries.size()));
  for (const auto& q : c.Queries) {
    w.Text(q.Name);
    w.Text(q.Sql);
    w.Number(static_cast<uint32_t>(q.Type));
  }
  w.Number(static_cast<uint32_t>(c.Properties.size()));
  for (const auto& [name, value] : c.Properties) {
    w.Text(name);
    w.Text(value);
  }
  return w.Take();
}

bool DecodeJetContents(std::string_view bytes, JetContents* out) {
  Reader r(bytes);
  JetContents c;
  uint32_t n = 0, m = 0;
  if (!r.Count(&n, 8)) return false;
  for (uint32_t i = 0; i < n; ++i) {
    std::string name;
    if (!r.Text(&name) || !r.Count(&m, 4)) return false;
    auto& docs = c.Containers[name];
    docs.resize(m);
    for (auto& d : docs)
      if (!r.Text(&d)) return false;
  }
  if (!r.Count(&n, 20)) return false;
  c.Tables.resize(n);
  for (auto& t : c.Tables) {
    int linked = 0;
    if (!r.Text(&t.Name) || !r.Int(&linked) || !r.Text(&t.Connect) || !r.Text(&t.SourceTable) ||
        !r.Count(&m, 12))
      return false;
    t.Linked = linked != 0;
    t.Fields.resize(m);
    for (auto& f : t.Fields)
      if (!r.Text(&f.Name) || !r.Int(&f.Type) || !r.Int(&f.Size)) return false;
  }
  if (!r.Count(&n, 12)) return false;
  c.Queries.resize(n);
  for (auto& q : c.Queries)
    if (!r.Text(&q.Name) || !r.Text(&q.Sql) || !r.Int(&q.Type)) return false;
  if (!r.Count(&n, 8)) return false;
  c.Properties.resize(n);
  for (auto& [name, value] : c.Properties)
    if (!r.Text(&name) || !r.Text(&value)) return false;
  if (!r.AtEnd()) return false;
  *out = std::move(c);
  return true;
}

bool ReadJetContentsGuarded(const fs::path& file, std::chrono::milliseconds limit, JetContents* out,
                            std::string* err) {
  return ReadJetContentsGuarded(file, limit, kJetReadMemoryLimit, ReadJetContents, out, err);
}

bool ReadJetContentsGuarded(const fs::path& file, std::chrono::milliseconds limit,
                            size_t memoryLimit, JetContentsReader reader, JetContents* out,
                            std::string* err) {
  int fds[2];
  if (pipe(fds) != 0) {
    *err = file.string() + ": cannot start reading the database: " + std::strerror(errno);
    return false;
  }
  const auto deadline = std::chrono::steady_clock::now() + limit;
  const pid_t pid = fork();
  if (pid < 0) {
    *err = file.string() + ": cannot start reading the database: " + std::strerror(errno);
    close(fds[0]);
    close(fds[1]);
    return false;
  }
  if (pid == 0) {
    close(fds[0]);
    RunChild(file, fds[1], memoryLimit, reader);
  }
  close(fds[1]);
  std::string message;
  const bool finished = ReadAll(fds[0], deadline, &message);
  close(fds[0]);
  if (!finished) kill(pid, SIGKILL);
  int status = 0;
  while (waitpid(pid, &status, 0) < 0 && errno == EINTR) {
  }
  if (!finished) {
    *err =
        file.string() + ": the database is damaged (reading its catalog does not come to an end)";
    return false;
  }
  if (!WIFEXITED(status) || WEXITSTATUS(status) != 0 || message.empty()) {
    *err = file.string() + ": the database is damaged (reading its catalog failed)";
    return false;
  }
  if (message[0] == 'E') {
    *err = message.substr(1);
    return false;
  }
  if (message[0] != 'O' || !DecodeJetContents(std::string_view(message).substr(1), out)) {
    *err = file.string() + ": the database is damaged (its catalog could not be read back)";
    return false;
  }
  return true;
}

}  // namespace morvane
