#include "host/inspection.h"

namespace host {

std::string ReadVariable(const Session& session, const std::string& path) {
    const InspectionAnswer answer = Ask(session.linkage->inspection->read_variable, path.c_str());
    return answer.good && !answer.results.empty() ? answer.results.front().second : std::string();
}

bool EnterRoute(const Session& session, const std::string& text, std::string& error) {
    const InspectionAnswer answer = Ask(session.linkage->inspection->enter_route, text.c_str());
    error = answer.error;
    return answer.good;
}

bool ExecuteRoute(const Session& session, std::string& error) {
    const InspectionAnswer answer = Ask(session.linkage->inspection->execute_route);
    error = answer.error;
    return answer.good;
}

}  // namespace host
