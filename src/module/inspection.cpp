#include "module/inspection.h"

#include <string>
#include <string_view>

#include "cdu/unit/items.h"
#include "efb/tablet_input.h"
#include "fmc/route/route_text.h"
#include "frame/named_variables.h"
#include "module/called_functions.h"
#include "module/controls/control_table.h"
#include "module/pictures.h"
#include "module/printed_lists.h"
#include "module/results.h"
#include "platform/state_lock.h"
#include "state/state_groups.h"
#include "state/variable_directory.h"

namespace {

const char* TypeName(ValueKind kind) {
    switch (kind) {
        case ValueKind::kInt:
            return "int";
        case ValueKind::kDouble:
            return "double";
        case ValueKind::kText:
        case ValueKind::kTextView:
            return "text";
        case ValueKind::kRecord:
            return "record";
        case ValueKind::kList:
            return "list";
    }
    return "";
}

bool IsSingleValue(const VariableRef& variable) {
    return variable.type->kind != ValueKind::kRecord && variable.type->kind != ValueKind::kList;
}

int ReadVariable(const char* path, ResultSink sink, void* context) {
    const StateLock lock;
    const Results results{sink, context};
    const auto variable = FindVariable(path);
    if (!variable) return results.Fail(std::string("unknown variable ") + path);
    if (!IsSingleValue(*variable)) return results.Fail(std::string(path) + " is no single value");
    results.Add(path, FormatValue(*variable));
    return 1;
}

int WriteVariable(const char* path, const char* value, ResultSink sink, void* context) {
    const StateLock lock;
    const Results results{sink, context};
    const auto variable = FindVariable(path);
    if (!variable) return results.Fail(std::string("unknown variable ") + path);
    if (!StoreValue(*variable, value))
        return results.Fail(std::string(path) + " does not take \"" + value + "\"");
    return 1;
}

int ListVariables(const char* pattern, ResultSink sink, void* context) {
    const StateLock lock;
    const Results results{sink, context};
    for (const StateGroup& group : StateGroups())
        for (const Variable& variable : *group.variables)
            if (variable.name.find(pattern) != std::string_view::npos)
                results.Add(variable.name,
                            std::string(TypeName(variable.type->kind)) + " " + std::string(group.name));
    return 1;
}

int CallFunction(const char* line, ResultSink sink, void* context) {
    const StateLock lock;
    return CallPureFunction(line, {sink, context});
}

int EnterRoute(const char* text, ResultSink sink, void* context) {
    const StateLock lock;
    std::string error;
    if (EnterRouteText(text, error) == 1) return 1;
    return Results{sink, context}.Fail(error);
}

int ExecuteEntered(ResultSink sink, void* context) {
    const StateLock lock;
    std::string error;
    if (ExecuteEnteredRoute(error) == 1) return 1;
    return Results{sink, context}.Fail(error);
}

int RunOperation(const char* line, ResultSink sink, void* context) {
    const StateLock lock;
    return RunRouteOperation(line, {sink, context});
}

int PrintListByName(const char* list, const char* argument, ResultSink sink, void* context) {
    const StateLock lock;
    return PrintList(list, argument, {sink, context});
}

int ListControls(ResultSink sink, void* context) {
    const Results results{sink, context};
    for (const PollSet& set : PollSets())
        for (const Control& control : set.controls) {
            std::string told(ClassName(control.kind));
            told.append(" ").append(set.name);
            for (const int end : {control.min, control.max}) told.append(" ").append(std::to_string(end));
            told.append(" ").append(control.guard == kNoVariable ? "-" : NameOf(control.guard));
            told.append(" ").append(control.shadow == nullptr ? "-" : NameOfVariable(control.shadow));
            results.Add(NameOf(control.variable), told);
        }
    return 1;
}

int ListModelVariables(ResultSink sink, void* context) {
    for (const NamedVariable& variable : kNamedVariables)
        if (variable.owner == NamedVariable::kModel) Results{sink, context}.Add(variable.name, "");
    return 1;
}

int PressClearMessage(int side) {
    const StateLock lock;
    OnClearMessage(side);
    return 1;
}

int TypeKeys(int side, const char* keys, ResultSink, void*) {
    const StateLock lock;
    for (const char* key = keys; *key != '\0'; ++key) TypeOnTablet(side, *key);
    return 1;
}

constexpr InspectionTable kInspection = {
    .version = kLinkageVersion,
    .read_variable = ReadVariable,
    .write_variable = WriteVariable,
    .list_variables = ListVariables,
    .enter_route = EnterRoute,
    .execute_route = ExecuteEntered,
    .call_function = CallFunction,
    .run_operation = RunOperation,
    .print_list = PrintListByName,
    .paint_pending = PaintPending,
    .picture = CopyPicture,
    .picture_png = CopyPicturePng,
    .list_fonts = ListFonts,
    .list_controls = ListControls,
    .press_clear_message = PressClearMessage,
    .stream_image = CopyStreamImage,
    .list_model_variables = ListModelVariables,
    .type_on_tablet = TypeKeys,
};

}  // namespace

const InspectionTable& Inspection() {
    return kInspection;
}
