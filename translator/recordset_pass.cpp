// The recordset and option group pass. Not built yet: the file stays as the
// first pass wrote it, and kPipelineStages says so.
#include "translator/recordset_pass.h"

namespace morvane {

void RecordsetPass(ConversionSession&, const std::string&) {}

}  // namespace morvane
