// Loading designs at scale: writes a source tree of generated forms (UTF-16LE
// with a byte order mark, as Access writes them) into a temporary directory,
// opens every form through the design store, reads a few properties of every
// control, and prints the times and the peak resident memory.
//
//   design_loader_bench [forms=500] [controls=100]
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "design/design_store.h"
#include "platform/source_tree.h"

namespace {

using Clock = std::chrono::steady_clock;

double Seconds(Clock::time_point since) {
  return std::chrono::duration<double>(Clock::now() - since).count();
}

std::string PeakRss() {
  std::ifstream status("/proc/self/status");
  std::string line;
  while (std::getline(status, line))
    if (line.rfind("VmHWM:", 0) == 0) return line.substr(6);
  return " unknown";
}

// One form's text: a default block, a header, and a detail section whose
// controls cycle through text boxes with attached labels, combo boxes,
// buttons, check boxes and option groups with members.
std::string FormText(int form, int controls) {
  std::string t =
      "Version =20\r\nVersionRequired =20\r\nBegin Form\r\n    RecordSelectors = NotDefault\r\n"
      "    Width =9000\r\n    RecordSource =\"tbl" +
      std::to_string(form) +
      "\"\r\n    Caption =\"Generated form\"\r\n    Begin\r\n        Begin Label\r\n"
      "            BackStyle =0\r\n        End\r\n        Begin TextBox\r\n"
      "            SpecialEffect =2\r\n        End\r\n        Begin Section\r\n"
      "            Height =20000\r\n            Name =\"Detail\"\r\n            Begin\r\n";
  for (int c = 0; c < controls; ++c) {
    std::string n = std::to_string(c);
    std::string pos = "                    Left =" + std::to_string(100 + (c % 4) * 2000) +
                      "\r\n                    Top =" + std::to_string(100 + c * 300) + "\r\n";
    switch (c % 5) {
      case 0:
        t += "                Begin TextBox\r\n" + pos + "                    Name =\"txt" + n +
             "\"\r\n                    ControlSource =\"Field" + n +
             "\"\r\n                    OnClick =\"[Event Procedure]\"\r\n"
             "                    Begin\r\n                        Begin Label\r\n"
             "                            Name =\"lbl" +
             n + "\"\r\n                            Caption =\"Field " + n +
             ":\"\r\n                        End\r\n                    End\r\n"
             "                End\r\n";
        break;
      case 1:
        t += "                Begin ComboBox\r\n" + pos + "                    Name =\"cbo" + n +
             "\"\r\n                    RowSourceType =\"Table/Query\"\r\n"
             "                    RowSource =\"SELECT ID, Name FROM tblLookup WHERE Active \"\r\n"
             "                        \"ORDER BY Name;\"\r\n                End\r\n";
        break;
      case 2:
        t += "                Begin CommandButton\r\n" + pos + "                    Name =\"cmd" +
             n + "\"\r\n                    Caption =\"&Go\"\r\n                End\r\n";
        break;
      case 3:
        t += "                Begin CheckBox\r\n" + pos + "                    Name =\"chk" + n +
             "\"\r\n                    ControlSource =\"Flag" + n +
             "\"\r\n                End\r\n";
        break;
      default:
        t += "                Begin OptionGroup\r\n" + pos + "                    Name =\"grp" + n +
             "\"\r\n                    Begin\r\n                        Begin OptionButton\r\n"
             "                            Name =\"opt" +
             n +
             "\"\r\n                            OptionValue =1\r\n"
             "                        End\r\n                    End\r\n"
             "                End\r\n";
        break;
    }
  }
  t += "            End\r\n        End\r\n    End\r\nEnd\r\n";
  return t;
}

std::string Utf16Le(const std::string& ascii) {
  std::string out = "\xFF\xFE";
  out.reserve(2 + ascii.size() * 2);
  for (char c : ascii) {
    out += c;
    out += '\0';
  }
  return out;
}

}  // namespace

int main(int argc, char** argv) {
  int forms = argc > 1 ? std::atoi(argv[1]) : 500;
  int controls = argc > 2 ? std::atoi(argv[2]) : 100;
  namespace fs = std::filesystem;
  fs::path dir = fs::temp_directory_path() / ("morvane-design-bench-" + std::to_string(::getpid()));
  fs::create_directories(dir / "forms");

  auto start = Clock::now();
  size_t bytes = 0;
  for (int f = 0; f < forms; ++f) {
    std::string text = Utf16Le(FormText(f, controls));
    bytes += text.size();
    std::ofstream(dir / "forms" / ("frmGen" + std::to_string(f) + ".form"), std::ios::binary)
        << text;
  }
  double generate = Seconds(start);

  start = Clock::now();
  std::string err;
  auto tree = morvane::SourceTree::Open(dir, "", &err);
  if (!tree) {
    std::fprintf(stderr, "source tree: %s\n", err.c_str());
    fs::remove_all(dir);
    return 1;
  }
  double discover = Seconds(start);

  start = Clock::now();
  morvane::DesignStore store(*tree);
  size_t controlCount = 0;
  std::vector<const morvane::FormDesign*> designs;
  for (const std::string& name : tree->Names(morvane::AccessObjectKind::Form)) {
    const morvane::FormDesign* design = store.OpenForm(name, &err);
    if (!design) {
      std::fprintf(stderr, "%s\n", err.c_str());
      fs::remove_all(dir);
      return 1;
    }
    designs.push_back(design);
    controlCount += design->Controls().size();
  }
  double load = Seconds(start);

  start = Clock::now();
  long checksum = 0;
  for (const morvane::FormDesign* design : designs) {
    for (const morvane::ControlDesign& c : design->Controls()) {
      checksum += c.Number("Left").value_or(0) + c.Number("Height").value_or(0);
      checksum += c.Flag("Visible").value_or(false) ? 1 : 0;
      checksum += static_cast<long>(c.Text("ControlSource").value_or("").size());
      checksum += c.Flag("TabStop").has_value() ? 1 : 0;
      checksum += static_cast<long>(c.Parent().Name().size());
    }
  }
  double read = Seconds(start);

  std::printf("forms: %d, controls: %zu, export bytes: %zu\n", forms, controlCount, bytes);
  std::printf("generate: %.3f s\ndiscover: %.3f s\nload: %.3f s (%.1f forms/s)\n", generate,
              discover, load, load > 0 ? forms / load : 0.0);
  std::printf("read 6 properties of every control: %.3f s (checksum %ld)\n", read, checksum);
  std::printf("peak resident memory (VmHWM):%s\n", PeakRss().c_str());
  fs::remove_all(dir);
  return 0;
}
