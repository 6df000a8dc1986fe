// Puts the initialisation that the hint processor collected for a form into
// its Form_Load and Form_Activate (behind an existing header, or in a new
// procedure at the end), and writes a report's DataReport_Initialize.
#pragma once

#include <string>

#include "translator/module_translation.h"

namespace morvane {

// Runs after every line written, with the line as written.
void InjectAfterLine(ModuleTranslation& t, const std::string& written);

// Runs once at the end of the input, before the output is closed.
void InjectAtEnd(ModuleTranslation& t);

}  // namespace morvane
