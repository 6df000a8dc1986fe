// Reason codes of the conversion analysis (tblReportOutput.ReasonID), shared
// by the translator, the form, user control and event writers and the check
// of the generated files. The analysis report gives each its label.
#pragma once

namespace morvane {

enum ReasonId : int {
  kReasonNoCounterpart = 1,         // property or statement with no Visual Basic counterpart
  kReasonNotHandled = 2,            // Application member, DoCmd method not handled
  kReasonPartlyConverted = 4,       // a control or form converted only in part
  kReasonCancelEvent = 5,           // DoCmd.CancelEvent
  kReasonNoEquivalent = 6,          // DoCmd statement with no equivalent in this form
  kReasonReview = 7,                // translated; the user should review the result
  kReasonListCallback = 8,          // list callback constants
  kReasonReportReference = 9,       // references to reports
  kReasonControlNotConverted = 10,  // a control of a type that has no counterpart
  kReasonDuplicateProcedure = 11,   // generated event code meets a procedure of that name
  kReasonEventProperty = 12,        // event property assignment
  kReasonPropertyRenamed = 13,      // a user control's property named apart from its field
  kReasonBlockKept = 14,            // block line not translated; a stand-in keeps the block
  kReason64Bit = 15,                // 64-bit declaration written for Visual Basic 6
  kReasonKeptChoice = 16,           // a rule left code alone that its plain text would corrupt
  kReasonWouldNotLoad = 17,         // the check of the generated files found a fault
};

}  // namespace morvane
