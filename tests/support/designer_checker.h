// A checker for the designers of a converted project: the DataReport
// designers and the data environment they bind to. It stands apart from the
// VB6 structure checker so that it can move on its own.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace morvane::test {

// Checks every .dsr of `dir`: Begin/End and BeginProperty/EndProperty
// balanced and nested; in a DataReport, each item of a class the designer
// knows for its ItemType, the items of a section numbered from 0 without a
// gap and counted by NumControls, the sections counted by NumSections, and
// every DataMember a command or grouping of the data environment; in the
// data environment, NumRecordsets commands with names of their own. Returns
// one entry per problem, "<file>:<line>: <what>"; empty when all is sound.
std::vector<std::string> CheckReportDesigners(const std::filesystem::path& dir);

}  // namespace morvane::test
