// A text file under construction, held in memory as its lines. The stages of
// a form, report or module (the writers, module export, the hint records, the
// line edits, the translator and the re-indenter) all work on one document,
// and the file is written once when the object is complete.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace morvane {

class TextDocument {
 public:
  TextDocument() = default;
  // Lines that may hold line breaks of their own, as a file written from
  // them and read back.
  explicit TextDocument(std::vector<std::string> lines) { SetLines(std::move(lines)); }

  // The text as bytes: a document made from bytes gives them back with its
  // line ends as CR LF.
  static TextDocument FromBytes(std::string_view bytes);

  std::vector<std::string>& Lines() { return lines_; }
  const std::vector<std::string>& Lines() const { return lines_; }
  // Replaces the lines; every line then ends with CR LF. A line break inside
  // a line starts a new one, as writing the file and reading it back would.
  void SetLines(std::vector<std::string> lines);
  // The same for lines [from, to) that an edit has just set.
  void SplitBreaks(size_t from, size_t to);
  bool Empty() const { return lines_.empty(); }

  // What appending the bytes to a file of this text and reading its lines
  // back would give: an unfinished last line continues, line breaks in the
  // bytes start new lines.
  void Append(std::string_view bytes);
  // Each line followed by CR LF.
  void AppendLines(const std::vector<std::string>& lines);
  // The same, taking the lines over.
  void AppendLines(std::vector<std::string>&& lines);
  // Gives the last line its line end, as writing the lines back to the file
  // does after an edit.
  void CloseLastLine() {
    open_ = false;
    pendingCr_ = false;
  }
  // True when the last line has no line end yet.
  bool EndsOpen() const { return open_; }

  // The file's bytes: each line followed by CR LF, the last one without when
  // it is still open.
  std::string Bytes() const;

 private:
  std::vector<std::string> lines_;
  bool open_ = false;       // the last line has no line end
  bool pendingCr_ = false;  // the last line end was a lone CR, which a LF may complete
};

}  // namespace morvane
