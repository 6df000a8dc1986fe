// A small evaluator of #If conditions.
#include "session/compiler_conditions.h"

#include <cctype>
#include <cmath>
#include <cstdlib>

#include "session/naming.h"

namespace morvane {

namespace {

bool IsNameChar(char c) {
  const auto u = static_cast<unsigned char>(c);
  return std::isalnum(u) || c == '_' || u > 128;
}

// Constants Visual Basic 6 defines for conditional compilation; any other
// name is Empty.
constexpr std::pair<std::string_view, double> kBuiltIn[] = {{"win32", -1}, {"win16", 0}};

struct Value {
  bool isText = false;
  double number = 0;
  std::string text;
  bool empty = false;
};

Value Number(double n) { return {false, n, {}, false}; }
Value Truth(bool b) { return Number(b ? -1 : 0); }
bool IsTrue(const Value& v) { return !v.isText && v.number != 0; }

class Evaluator {
 public:
  Evaluator(std::string_view text,
            const std::vector<std::pair<std::string, std::string>>& constants, int depth)
      : text_(text), constants_(constants), depth_(depth) {}

  std::optional<Value> Run() {
    Value v = Imp();
    Blanks();
    if (failed_ || pos_ != text_.size()) return std::nullopt;
    return v;
  }

 private:
  void Blanks() {
    while (pos_ < text_.size() && (text_[pos_] == ' ' || text_[pos_] == '\t')) ++pos_;
  }
  // The keyword `word` comes next, as a whole word.
  bool Keyword(std::string_view word) {
    Blanks();
    if (!StartsWithNoCase(text_.substr(pos_), word)) return false;
    const size_t end = pos_ + word.size();
    if (end < text_.size() && IsNameChar(text_[end])) return false;
    pos_ = end;
    return true;
  }
  bool Symbol(std::string_view symbol) {
    Blanks();
    if (text_.substr(pos_, symbol.size()) != symbol) return false;
    pos_ += symbol.size();
    return true;
  }

  Value Imp() {
    Value a = Or();
    for (;;) {
      if (Keyword("Imp")) {
        Value b = Or();
        a = Truth(!IsTrue(a) || IsTrue(b));
      } else if (Keyword("Eqv")) {
        Value b = Or();
        a = Truth(IsTrue(a) == IsTrue(b));
      } else {
        return a;
      }
    }
  }
  Value Or() {
    Value a = And();
    for (;;) {
      if (Keyword("Or")) {
        Value b = And();
        a = Truth(IsTrue(a) || IsTrue(b));
      } else if (Keyword("Xor")) {
        Value b = And();
        a = Truth(IsTrue(a) != IsTrue(b));
      } else {
        return a;
      }
    }
  }
  Value And() {
    Value a = Not();
    while (Keyword("And")) {
      Value b = Not();
      a = Truth(IsTrue(a) && IsTrue(b));
    }
    return a;
  }
  Value Not() {
    if (Keyword("Not")) return Truth(!IsTrue(Not()));
    return Compare();
  }
  Value Compare() {
    Value a = Concat();
    for (std::string_view op : {"<>", "<=", ">=", "=", "<", ">"}) {
      if (!Symbol(op)) continue;
      Value b = Concat();
      int order = 0;
      if (a.isText || b.isText) {
        const std::string x = a.isText ? a.text : (a.empty ? "" : Format(a.number));
        const std::string y = b.isText ? b.text : (b.empty ? "" : Format(b.number));
        order = x < y ? -1 : (x > y ? 1 : 0);
      } else {
        order = a.number < b.number ? -1 : (a.number > b.number ? 1 : 0);
      }
      if (op == "=") return Truth(order == 0);
      if (op == "<>") return Truth(order != 0);
      if (op == "<") return Truth(order < 0);
      if (op == ">") return Truth(order > 0);
      if (op == "<=") return Truth(order <= 0);
      return Truth(order >= 0);
    }
    return a;
  }
  static std::string Format(double n) {
    if (n == std::floor(n) && std::fabs(n) < 1e15) return std::to_string(static_cast<long long>(n));
    return std::to_string(n);
  }
  Value Concat() {
    Value a = Add();
    while (Symbol("&")) {
      Value b = Add();
      Value c;
      c.isText = true;
      c.text = (a.isText ? a.text : (a.empty ? "" : Format(a.number))) +
               (b.isText ? b.text : (b.empty ? "" : Format(b.number)));
      a = c;
    }
    return a;
  }
  Value Add() {
    Value a = Mul();
    for (;;) {
      if (Symbol("+")) {
        a = Number(a.number + Mul().number);
      } else if (Symbol("-")) {
        a = Number(a.number - Mul().number);
      } else {
        return a;
      }
    }
  }
  Value Mul() {
    Value a = Unary();
    for (;;) {
      if (Symbol("*")) {
        a = Number(a.number * Unary().number);
      } else if (Symbol("/") || Symbol("\\") || Keyword("Mod")) {
        const double b = Unary().number;
        if (b == 0) {
          failed_ = true;
          return a;
        }
        a = Number(std::trunc(a.number / b));
      } else {
        return a;
      }
    }
  }
  Value Unary() {
    if (Symbol("-")) return Number(-Unary().number);
    if (Symbol("+")) return Unary();
    return Primary();
  }
  Value Primary() {
    Blanks();
    if (pos_ >= text_.size()) {
      failed_ = true;
      return {};
    }
    const char c = text_[pos_];
    if (c == '(') {
      ++pos_;
      Value v = Imp();
      if (!Symbol(")")) failed_ = true;
      return v;
    }
    if (c == '"') {
      Value v;
      v.isText = true;
      ++pos_;
      for (;;) {
        if (pos_ >= text_.size()) {
          failed_ = true;
          return v;
        }
        if (text_[pos_] == '"') {
          if (pos_ + 1 < text_.size() && text_[pos_ + 1] == '"') {
            v.text += '"';
            pos_ += 2;
            continue;
          }
          ++pos_;
          return v;
        }
        v.text += text_[pos_++];
      }
    }
    if (c == '&' && pos_ + 1 < text_.size() && (text_[pos_ + 1] == 'H' || text_[pos_ + 1] == 'h')) {
      pos_ += 2;
      const size_t start = pos_;
      while (pos_ < text_.size() && std::isxdigit(static_cast<unsigned char>(text_[pos_]))) ++pos_;
      if (pos_ == start) failed_ = true;
      return Number(static_cast<double>(
          std::strtoll(std::string(text_.substr(start, pos_ - start)).c_str(), nullptr, 16)));
    }
    if ((c >= '0' && c <= '9') || c == '.') {
      const size_t start = pos_;
      while (pos_ < text_.size() &&
             ((text_[pos_] >= '0' && text_[pos_] <= '9') || text_[pos_] == '.'))
        ++pos_;
      return Number(std::atof(std::string(text_.substr(start, pos_ - start)).c_str()));
    }
    if (IsNameChar(c)) {
      const size_t start = pos_;
      while (pos_ < text_.size() && IsNameChar(text_[pos_])) ++pos_;
      const std::string name = ToLower(text_.substr(start, pos_ - start));
      if (name == "true") return Truth(true);
      if (name == "false") return Truth(false);
      for (const auto& [known, value] : kBuiltIn)
        if (name == known) return Number(value);
      for (auto it = constants_.rbegin(); it != constants_.rend(); ++it) {
        if (it->first != name) continue;
        if (depth_ > 8) break;
        auto v = Evaluator(it->second, constants_, depth_ + 1).Run();
        if (!v) failed_ = true;
        return v.value_or(Value{});
      }
      Value empty;
      empty.empty = true;
      return empty;
    }
    failed_ = true;
    return {};
  }

  std::string_view text_;
  const std::vector<std::pair<std::string, std::string>>& constants_;
  int depth_;
  size_t pos_ = 0;
  bool failed_ = false;
};

}  // namespace

std::optional<bool> CompilerCondition(
    std::string_view expression,
    const std::vector<std::pair<std::string, std::string>>& constants) {
  auto v = Evaluator(expression, constants, 0).Run();
  if (!v) return std::nullopt;
  return IsTrue(*v);
}

}  // namespace morvane
