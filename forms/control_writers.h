// The control writers: one per Access control family, each writing the
// Visual Basic text of FormTextSet::CurrentControl through the form writer
// (name, page, lines, PutControlText, counts).
#pragma once

namespace morvane {

class FormWriter;

void WriteLabel(FormWriter& w);             // 100 VB.Label
void WriteShape(FormWriter& w);             // 101 VB.Shape (rectangle pass)
void WriteLineControl(FormWriter& w);       // 102 VB.Line
void WriteImage(FormWriter& w);             // 103 VB.PictureBox
void WriteCommandButton(FormWriter& w);     // 104 VB.CommandButton / Threed.SSCommand
void WriteOptionButton(FormWriter& w);      // 105, 122 stand-alone
void WriteCheckBox(FormWriter& w);          // 106 VB.CheckBox
void WriteOptionGroup(FormWriter& w);       // 107 VB.Frame with members
void WriteBoundObjectFrame(FormWriter& w);  // 108 VB.OLE
void WriteTextBox(FormWriter& w);           // 109 VB.TextBox / MSComCtl2.DTPicker
void WriteCustomControl(FormWriter& w);     // 119 class from CustomControlMapping

}  // namespace morvane
