// Whole-line edits on a text document: the operations the code generators use
// to add to procedures that may already be in a form text, and the
// re-indenter that runs over every finished file. A call that finds no anchor
// leaves the document as it was. Nothing here shows anything or throws.
#pragma once

#include <string>

#include "platform/text_document.h"

namespace morvane {

int IsDuplicateLine(const TextDocument& doc, const std::string& line, int reserved = 0);
void InsertLine(TextDocument& doc, const std::string& anchor, const std::string& newLine,
                int placement);
void ChangeLine2(TextDocument& doc, const std::string& oldLine, const std::string& newLine);
void ChangeLine(TextDocument& doc, const std::string& line, int reserved = 0);
int AddToCtlArray(TextDocument& doc, const std::string& arrayName, const std::string& blockLine,
                  const std::string& indexText);
void AddDataCtlEntry2(TextDocument& doc, const std::string& dataControl, const std::string& line);
void AddDataCtlEntry(TextDocument& doc, const std::string& dataControl, const std::string& line);
void SilentIndent(TextDocument& doc);

}  // namespace morvane
