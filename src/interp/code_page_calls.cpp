// User functions: the header of a function page, the analysis of calls, and
// the binding of arguments to the callee's parameters by reference.
#include <string>

#include "expr/evaluator.h"
#include "expr/keywords.h"
#include "expr/text_scan.h"
#include "expr/vocabulary.h"
#include "interp/code_page.h"
#include "interp/interpreter.h"
#include "interp/text_helpers.h"
#include "values/fault.h"
#include "values/number_text.h"

namespace lapdesk {

namespace {

// Name(a, b, ...) or a bare Name: the name and the argument texts.
bool ParseCall(std::string_view text, std::string_view& name, std::vector<std::string_view>& args) {
    text = Trim(text);
    args.clear();
    const std::size_t open = text.find('(');
    if (open == std::string_view::npos) {
        name = text;
        return IsValidName(name);
    }
    name = TrimRight(text.substr(0, open));
    if (!IsValidName(name) || !BracketClosesAtEnd(text, open)) return false;
    const std::string_view inside = text.substr(open + 1, text.size() - open - 2);
    if (Trim(inside).empty()) return true;
    return SplitTopLevel(inside, ',', args);
}

}  // namespace

// Function Name(p1, p2, ...)
bool ClsCode::APc03DefineFunction(std::string_view header) {
    std::string_view rest;
    std::string_view name;
    std::vector<std::string_view> parameters;
    // A function named "Imidate" would take the place of the global page.
    if (LineNum() != 1 || ClassifyStatement(header, rest) != kw::Function ||
        !ParseCall(rest, name, parameters) || IsReservedWord(name) || SameWord(name, "Imidate")) {
        return false;
    }
    std::vector<CallArgument> slots;
    for (std::string_view parameter : parameters) {
        parameter = Trim(parameter);
        if (!IsValidName(parameter) || IsReservedWord(parameter)) return false;
        for (const CallArgument& slot : slots) {
            if (SameName(slot.Name, parameter, session_.caseSensitive())) return false;
        }
        CallArgument slot;
        slot.Name = std::string(parameter);
        slot.Kind = ArgumentKind::Literal;
        slots.push_back(std::move(slot));
    }
    SetPageName(std::string(name));
    arguments_ = std::move(slots);
    session_.NamesChanged();
    return true;
}

void ClsCode::ACopyToArgment(std::int16_t index, const CallArgument& argument) {
    if (index < 0 || index >= NumofArg()) RaiseFault(FaultCode::SubscriptOutOfRange);
    CallArgument& slot = arguments_[static_cast<std::size_t>(index)];
    std::string name = std::move(slot.Name);
    slot = argument;
    slot.Name = std::move(name);
}

// Call Name(arguments), or a statement that is the call alone.
bool ClsCode::AnalyseCall(std::string_view text, std::int16_t& entry) {
    std::string_view name;
    std::vector<std::string_view> args;
    if (!ParseCall(text, name, args)) return false;
    SetErrorText("Call文 " + std::string(name) + " が無い");
    ClsCode* target = session_.FindPage(name);
    if (target == nullptr) return false;
    CallEntry call{target, ToInt16(static_cast<long long>(args.size())), {}};
    for (std::string_view arg : args) {
        CallArgument argument;
        if (!BindArgument(arg, argument)) {
            SetErrorText("Call文引数 " + std::string(Trim(arg)) + " が無い");
            return false;
        }
        call.Arguments.push_back(std::move(argument));
    }
    entry = ToInt16(static_cast<long long>(calls_.size()));
    calls_.push_back(std::move(call));
    return true;
}

// A named variable or element is passed by reference, a number literal and
// anything else as a value.
bool ClsCode::BindArgument(std::string_view text, CallArgument& argument) {
    text = Trim(text);
    if (text.empty()) return false;
    argument.Text = argument.Name = std::string(text);
    std::string literal(text);
    if (TextToComplex(literal, argument.Value)) {
        argument.Kind = ArgumentKind::Literal;
        return true;
    }
    NameWithSubscripts parsed;
    if (SplitNameAndSubscripts(text, parsed) && !ConstantValue(parsed.name)) {
        const Found found = AzIsVariableSearch(parsed.name);
        if (found.kind != NameKind::None) {
            argument.Kind = IsParameter(found.kind)          ? ArgumentKind::Parameter
                            : found.kind == NameKind::Global ? ArgumentKind::Global
                                                             : ArgumentKind::Memory;
            argument.Page = found.page;
            argument.Index = IsParameter(found.kind) ? found.slot : found.index;
            argument.SubscriptCount = ToInt16(static_cast<long long>(parsed.subscripts.size()));
            if (!parsed.subscripts.empty()) argument.Subscript1 = parsed.subscripts[0];
            if (parsed.subscripts.size() > 1) argument.Subscript2 = parsed.subscripts[1];
            return true;
        }
        if (parsed.subscripts.empty()) return false;  // an unknown plain name
    }
    argument.Kind = ArgumentKind::Expression;
    return true;
}

// Makes one argument ready for the callee: evaluates expressions and the
// subscripts of an element, and follows a parameter passed on to what it
// refers to.
bool ClsCode::PrepareArgument(Evaluator& evaluator, CallArgument& argument,
                              ProgramErrorKind& failure) {
    if (argument.Kind == ArgumentKind::Expression) {
        if (evaluator.EvalArgument(argument.Text, argument.Value)) return true;
        failure = ProgramErrorKind::ArgumentExpression;
        return false;
    }
    if (argument.Kind == ArgumentKind::Literal) return true;
    argument.Flat = -1;
    if (argument.Kind == ArgumentKind::Parameter) {
        const CallArgument& passed = arguments_.at(static_cast<std::size_t>(argument.Index));
        if (passed.IsValue()) {
            argument.Kind = passed.Kind;
            argument.Value = passed.Value;
            return true;
        }
        argument.Page = passed.Page;
        argument.Index = passed.Index;
        argument.Flat = passed.Flat;
    }
    if (argument.Page == nullptr || argument.Index < 0 ||
        argument.Index >= argument.Page->NumofMemory()) {
        failure = ProgramErrorKind::ArgumentExpression;
        return false;
    }
    // Subscripts first: they may run a function page whose analysis adds
    // variables and so moves the variable record.
    const bool element = argument.SubscriptCount > 0 && argument.Flat < 0;
    std::int16_t index[2] = {0, 0};
    const std::string subscripts[2] = {argument.Subscript1, argument.Subscript2};
    for (int k = 0; element && k < argument.SubscriptCount && k < 2; ++k) {
        if (!EvalSubscript(evaluator, subscripts[k], index[k])) {
            failure = ProgramErrorKind::ArgumentSubscript;
            return false;
        }
    }
    const MemoryRec& rec = argument.Page->Memory(argument.Index);
    argument.NI = rec.NI;
    argument.NJ = rec.NJ;
    argument.Ln = rec.Ln;
    if (!element) return true;
    const std::int32_t flat = (rec.NI + 1) * index[1] + index[0];
    if (flat < 0 || flat > rec.Ln) {
        failure = ProgramErrorKind::ArgumentRange;
        return false;
    }
    argument.Flat = flat;
    return true;
}

void ClsCode::FailArgument(ProgramErrorKind kind, const std::string& argument) {
    SetErrorText(ArgumentFailureText(kind, argument));
    errorKind_ = kind;
    errorArgument_ = argument;
}

bool ClsCode::RunCall(Evaluator& evaluator, CallEntry& entry, Complex& result) {
    if (entry.Target->NumofArg() != entry.ArgumentCount) {
        SetErrorText("引数の数が違います");
        return false;
    }
    std::vector<CallArgument> prepared = entry.Arguments;
    for (CallArgument& argument : prepared) {
        ProgramErrorKind failure = ProgramErrorKind::ArgumentExpression;
        if (PrepareArgument(evaluator, argument, failure)) continue;
        // A nested call whose argument failed first named the real culprit.
        if (errorText_.empty()) FailArgument(failure, argument.Text);
        return false;
    }
    for (std::size_t k = 0; k < prepared.size(); ++k) {
        entry.Target->ACopyToArgment(static_cast<std::int16_t>(k), prepared[k]);
    }
    double re = 0.0;
    double im = 0.0;
    if (!entry.Target->APc02CodeExecute(re, im)) return false;
    result = {re, im};
    return true;
}

bool ClsCode::CallUserFunction(Evaluator& evaluator, std::string_view call, Complex& value) {
    std::string_view name;
    std::vector<std::string_view> args;
    if (!ParseCall(call, name, args)) return false;
    ClsCode* target = session_.FindPage(name);
    if (target == nullptr) return false;
    CallEntry entry{target, ToInt16(static_cast<long long>(args.size())), {}};
    for (std::string_view arg : args) {
        CallArgument argument;
        if (!BindArgument(arg, argument)) return false;
        entry.Arguments.push_back(std::move(argument));
    }
    return RunCall(evaluator, entry, value);
}

}  // namespace lapdesk
