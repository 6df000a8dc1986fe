// A form writer over designs held in memory, standing where the walk stands
// when it calls a control writer: the form and control in hand, the section
// offset set, the output in a temporary directory. Shared by the tests of
// the control writers and of picture extraction.
#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

#include "design/design_store.h"
#include "design/form_design.h"
#include "forms/form_writer.h"
#include "platform/text_file.h"
#include "session/conversion_session.h"
#include "session/naming.h"
#include "support/hint_text.h"
#include "support/temp_dir.h"

namespace morvane::test {

// A form of one detail section (height 3000, colour C0C0C0) holding
// `controls`, a text of Begin ... End control blocks.
inline std::string FormText(const std::string& controls, const std::string& formProperties = "") {
  return "Version =20\nVersionRequired =20\nBegin Form\n    Width =6000\n" + formProperties +
         "    Begin Section\n        Height =3000\n        BackColor =12632256\n"
         "        Name =\"Detail\"\n        Begin\n" +
         controls + "        End\n    End\nEnd\n";
}

// A control block: its type, its property lines joined by "|", and the
// blocks it holds.
inline std::string Ctl(const std::string& type, const std::string& properties,
                       const std::string& inner = "") {
  std::string out = "Begin " + type + "\n" + ReplaceAllText(properties, "|", "\n");
  if (!out.ends_with("\n")) out += "\n";
  if (!inner.empty()) out += "Begin\n" + inner + "End\n";
  return out + "End\n";
}

// A binary property as SaveAsText writes it: hex lines in a Begin ... End.
inline std::string HexProperty(const std::string& key, const std::string& bytes) {
  std::string out = key + " = Begin\n";
  for (size_t i = 0; i < bytes.size(); i += 32) {
    out += "0x";
    for (size_t k = i; k < bytes.size() && k < i + 32; ++k) {
      char buf[3];
      std::snprintf(buf, sizeof buf, "%02x", static_cast<unsigned char>(bytes[k]));
      out += buf;
    }
    out += i + 32 < bytes.size() ? " ,\n" : "\n";
  }
  return out + "End\n";
}

// `size` bytes starting with `first`, the rest a repeating pattern. A
// bitmap's image size (the long at 20) is set to `imageSize`.
inline std::string PictureBytes(unsigned char first, size_t size, uint32_t imageSize = 0) {
  std::string data(size, '\0');
  for (size_t i = 0; i < size; ++i) data[i] = static_cast<char>((i * 7 + 3) & 0xFF);
  data[0] = static_cast<char>(first);
  if (first == 40 && size >= 24)
    for (int i = 0; i < 4; ++i) data[20 + i] = static_cast<char>((imageSize >> (8 * i)) & 0xFF);
  return data;
}

// The text of hint records whose fields are given joined by "|".
inline std::string Fields(const std::string& joined) {
  return joined.empty() ? "" : ReplaceAllText(joined, "|", "\r\n") + "\r\n";
}

// Checks a written control text line by line: each entry is a whole line
// of it, or, after a "!", the start of no line of it.
inline void ExpectLines(const std::string& text, const std::vector<std::string>& lines) {
  const std::string all = "\r\n" + text + "\r\n";
  for (const std::string& l : lines) {
    if (l[0] == '!')
      EXPECT_EQ(all.find("\r\n" + l.substr(1)), std::string::npos) << l << " in\n" << text;
    else
      EXPECT_NE(all.find("\r\n" + l + "\r\n"), std::string::npos) << l << " in\n" << text;
  }
}

class WriterHarness : public ::testing::Test {
 protected:
  struct Export {
    AccessObjectKind Kind;
    std::string Name;
    std::string Text;
  };

  WriterHarness()
      : store_([this](AccessObjectKind kind, const std::string& name, DesignStore::ExportText* out,
                      bool* missing, std::string*) {
          for (const Export& e : exports_) {
            if (e.Kind != kind || !EqualsNoCase(e.Name, name)) continue;
            out->Lines = SplitLines(e.Text);
            out->File = e.Name + ".txt";
            out->Name = e.Name;
            return true;
          }
          *missing = true;
          return false;
        }),
        w_(s_, store_) {
    s_.OptionWordLength = 11;
    s_.OutputPath = dir_.path().string() + "/";
  }

  void AddForm(const std::string& name, const std::string& text) {
    exports_.push_back({AccessObjectKind::Form, name, text});
  }
  void AddReport(const std::string& name, const std::string& text) {
    exports_.push_back({AccessObjectKind::Report, name, text});
  }

  // Stands the writer on control `control` of the top form `form`, in the
  // detail section below a header of `detailTop` twips.
  const ControlDesign& Stand(const std::string& control, long detailTop = 600,
                             const std::string& form = "frmTest") {
    std::string err;
    FormTextSet& t = w_.Text();
    t.OwnerFormName = form;
    t.CurrentForm = store_.OpenForm(form, &err);
    EXPECT_NE(t.CurrentForm, nullptr) << err;
    t.CurrentControl = t.CurrentForm ? t.CurrentForm->Control(control) : nullptr;
    EXPECT_NE(t.CurrentControl, nullptr) << "no control " << control;
    t.Place.DetailTop = detailTop;
    t.Place.SectionOffset = detailTop;
    return *t.CurrentControl;
  }

  // What the writers put into the form body since the last call.
  std::string Written() {
    std::string body = w_.Text().BodyText;
    w_.Text().BodyText.clear();
    if (body.compare(0, 2, "\r\n") == 0) body.erase(0, 2);
    return body;
  }
  // The text of the records the writers left since the last call.
  std::string HintText() {
    std::string hints = test::HintText(s_.Form().Hints);
    s_.Form().Hints.clear();
    return hints;
  }

  TempDir dir_;
  ConversionSession s_;
  std::vector<Export> exports_;
  DesignStore store_;
  FormWriter w_;
};

}  // namespace morvane::test
