// Procedure headers and the bodies of event procedures. Access events with a
// Cancel or Response parameter become functions whose result the generated
// Visual Basic event acts on; a report's events get the names of the data
// report designer.
#pragma once

#include <string>

#include "translator/module_translation.h"

namespace morvane {

// A Sub or Function header: counts it, sets CurrentRoutine and EventFunction,
// rewrites event headers. Returns false for any other line.
bool ProcedureHeaderRules(ModuleTranslation& t, std::string& line);

// Exit Sub, Cancel, Response and End Sub inside an event turned function.
void EventBodyRules(ModuleTranslation& t, std::string& line);

// Report event names (Report_ -> DataReport_) and the tblLog row per Sub.
void ReportRules(ModuleTranslation& t, std::string& line);

}  // namespace morvane
