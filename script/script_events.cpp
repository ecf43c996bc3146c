// Empty defaults of the script observer.
#include "mapcfg/script.h"

namespace mapcfg {

ScriptEvents::~ScriptEvents() = default;
void ScriptEvents::OnFileBegin(const std::string&, int) {}
void ScriptEvents::OnFileEnd(const std::string&, int) {}
void ScriptEvents::OnLine(const std::string&, int, const std::string&, bool) {}
void ScriptEvents::OnCtrlZ(const std::string&, int, bool) {}
void ScriptEvents::OnJoin(const std::string&, int, const std::string&, int, const std::string&) {}
void ScriptEvents::OnLineSplit(const std::string&, int) {}
void ScriptEvents::OnRowLostAtEnd(const std::string&, int) {}
void ScriptEvents::OnInclude(const std::string&, int, const std::string&, bool, bool, bool) {}
void ScriptEvents::OnStrayRow(const std::string&, int, const std::string&) {}
void ScriptEvents::OnEmptyHeader(const std::string&, int) {}
void ScriptEvents::OnHeaderAbandoned(const std::string&, int, const std::string&, int, const std::string&) {}
void ScriptEvents::OnKey(const std::string&, int, const std::string&, const std::string&, bool) {}
void ScriptEvents::OnHeaderInBlock(const std::string&, int, const std::string&) {}
void ScriptEvents::OnBlock(const std::string&, int, int, const std::string&) {}
void ScriptEvents::OnBlockLost(const std::string&, int, const std::string&, bool) {}

}  // namespace mapcfg
