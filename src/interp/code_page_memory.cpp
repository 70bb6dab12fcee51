// A page's variables: lookup across the page, its parameters and the globals;
// declaration, erasing and direct element access.
#include <algorithm>

#include "expr/evaluator.h"
#include "expr/matrix_call.h"
#include "expr/text_scan.h"
#include "expr/vocabulary.h"
#include "interp/code_page.h"
#include "interp/interpreter.h"
#include "interp/run_limits.h"
#include "interp/text_helpers.h"

namespace lapdesk {

namespace {

// A flat index of 65535 (the 16-bit -1 read as unsigned) asks for (i, j).
bool ComputesFlatIndex(std::int32_t flat) {
    return flat == -1 || flat > 65534;
}

}  // namespace

std::int16_t ClsCode::AppendVariable(std::string_view name, std::int16_t typ, std::int16_t ni,
                                     std::int16_t nj) {
    const std::int16_t ln = Sub16(Mul16(Add16(ni, 1), Add16(nj, 1)), 1);
    const std::int16_t index = NumofMemory();
    RequireRoomForOneMore(index);
    memory_.push_back(MemoryRec{std::string(name), typ, ni, nj, ln,
                                std::vector<Complex>(static_cast<std::size_t>(ln) + 1)});
    session_.NamesChanged();
    SetAnalized(false);
    return index;
}

void ClsCode::AEraseMemorys() {
    memory_.clear();
    arguments_.clear();
    calls_.clear();
    fors_.clear();
    dos_.clear();
    ifs_.clear();
    selects_.clear();
    statements_.clear();
    session_.NamesChanged();
    SetAnalized(false);
}

void ClsCode::AEraseMemory(std::int16_t i) {
    Memory(i);  // bounds check
    memory_.erase(memory_.begin() + i);
    session_.NamesChanged();
    SetAnalized(false);
}

void ClsCode::AImidateGetMemoryInformation(std::int16_t i, std::string& name, std::int16_t& typ,
                                           std::int16_t& ni, std::int16_t& nj, double& re,
                                           double& im) const {
    const MemoryRec& rec = Memory(i);
    name = rec.Name;
    typ = rec.Typ;
    ni = rec.NI;
    nj = rec.NJ;
    re = rec.Values.front().Re;
    im = rec.Values.front().Im;
}

bool ClsCode::AVariableValueDirectGet(std::int16_t k, std::int16_t i, std::int16_t j,
                                      std::int32_t& flat, double& re, double& im) const {
    const MemoryRec& rec = Memory(k);
    if (ComputesFlatIndex(flat)) flat = (rec.NI + 1) * j + i;
    if (flat > rec.Ln) return false;
    if (flat < 0) RaiseFault(FaultCode::SubscriptOutOfRange);
    re = rec.Values[static_cast<std::size_t>(flat)].Re;
    im = rec.Values[static_cast<std::size_t>(flat)].Im;
    return true;
}

bool ClsCode::AzVariableValueDirectSet(std::int16_t k, std::int16_t i, std::int16_t j,
                                       std::int32_t& flat, double re, double im) {
    MemoryRec& rec = Memory(k);
    if (ComputesFlatIndex(flat)) flat = (rec.NI + 1) * j + i;
    if (flat > rec.Ln) return false;
    if (flat < 0) RaiseFault(FaultCode::SubscriptOutOfRange);
    rec.Values[static_cast<std::size_t>(flat)] = {re, im};
    return true;
}

ClsCode::Found ClsCode::AzIsVariableSearch(std::string_view name) {
    const bool cs = session_.caseSensitive();
    for (std::int16_t k = 0; k < NumofMemory(); ++k) {
        const MemoryRec& rec = memory_[static_cast<std::size_t>(k)];
        if (SameName(rec.Name, name, cs))
            return {NameKind::Memory, this, k, -1, rec.Typ, rec.NI, rec.NJ, rec.Values[0]};
    }
    if (pageIndex_ != kImmediatePageIndex) {
        for (std::int16_t s = 0; s < NumofArg(); ++s) {
            if (SameName(arguments_[static_cast<std::size_t>(s)].Name, name, cs))
                return ParameterFound(s);
        }
        ClsCode& global = session_.ImmediatePage();
        for (std::int16_t k = 0; k < global.NumofMemory(); ++k) {
            if (!SameName(global.MemoryName(k), name, cs)) continue;
            return {NameKind::Global,
                    &global,
                    k,
                    -1,
                    global.MemoryTyp(k),
                    global.MemoryNI(k),
                    global.MemoryNJ(k),
                    global.memory_[static_cast<std::size_t>(k)].Values[0]};
        }
    } else if (session_.PageCount() > 0) {
        Found found = session_.Page(0).AzIsVariableSearch(name);
        if (found.kind != NameKind::None) found.kind = NameKind::Main;
        return found;
    }
    return {};
}

// A parameter's kind and value follow from what the current call bound to it.
ClsCode::Found ClsCode::ParameterFound(std::int16_t s) {
    const CallArgument& slot = arguments_[static_cast<std::size_t>(s)];
    const NameKind kind = slot.IsValue()   ? NameKind::ValueParameter
                          : slot.Flat >= 0 ? NameKind::ElementParameter
                                           : NameKind::VariableParameter;
    Found found{kind, slot.Page, slot.Index, s, slot.SubscriptCount, slot.NI, slot.NJ, slot.Value};
    CallArgument* through = nullptr;
    const MemoryRec* rec = Referent(found, &through);
    // The element may be gone: its array can shrink while bound.
    if (rec != nullptr && slot.Flat <= rec->Ln) {
        found.value = rec->Values[static_cast<std::size_t>(std::max(slot.Flat, 0))];
    }
    return found;
}

bool ClsCode::IsCurrent(const Place& place) const {
    return place.scope == this && place.generation == session_.NamesGeneration();
}

ClsCode::Found ClsCode::Locate(std::string_view name, Place& place) {
    if (!IsCurrent(place)) {
        const Found found = AzIsVariableSearch(name);
        place = {this,       session_.NamesGeneration(),           found.page, found.index,
                 found.slot, static_cast<std::uint8_t>(found.kind)};
        return found;
    }
    if (place.slot >= 0) return ParameterFound(place.slot);
    Found found;
    found.kind = static_cast<NameKind>(place.kind);
    found.page = static_cast<ClsCode*>(place.owner);
    found.index = place.index;
    return found;
}

MemoryRec* ClsCode::Referent(const Found& found, CallArgument** slot) {
    *slot = nullptr;
    if (found.kind == NameKind::None || found.kind == NameKind::ValueParameter) {
        if (found.kind == NameKind::ValueParameter)
            *slot = &arguments_[static_cast<std::size_t>(found.slot)];
        return nullptr;
    }
    if (found.slot >= 0) *slot = &arguments_[static_cast<std::size_t>(found.slot)];
    if (found.page == nullptr || found.index < 0 || found.index >= found.page->NumofMemory()) {
        return nullptr;
    }
    return &found.page->memory_[static_cast<std::size_t>(found.index)];
}

std::int16_t ClsCode::OwnMemoryIndex(std::string_view name) const {
    for (std::int16_t k = 0; k < NumofMemory(); ++k) {
        if (SameName(MemoryName(k), name, session_.caseSensitive())) return k;
    }
    return -1;
}

bool ClsCode::ReportReserved(std::string_view name) {
    if (!IsReservedWord(name)) return false;
    session_.view().ShowHint(std::string(name) + " is Reserved Word");
    SetErrorText("代入先が不正");
    return true;
}

bool ClsCode::EvalSubscript(Evaluator& evaluator, const SubscriptScan& subscript,
                            std::int16_t& index) {
    Complex value;
    if (!evaluator.EvalArgument(subscript, value)) return false;
    index = RoundToInt16(value.Re);
    return true;
}

bool ClsCode::EvalSubscript(Evaluator& evaluator, std::string_view text, std::int16_t& index) {
    Complex value;
    if (!evaluator.EvalArgument(SubscriptText(text), value)) return false;
    index = RoundToInt16(value.Re);
    return true;
}

// Only flat <= Ln is checked, so a subscript past its own bound that still
// falls inside the array is accepted. The subscripts are evaluated before the
// variable is looked at: one may run a function page whose analysis adds
// variables, which moves every variable record.
MemoryRec* ClsCode::Element(Evaluator& evaluator, const Found& found,
                            std::span<const SubscriptScan> subscripts, std::int32_t& flat) {
    std::int16_t index[2] = {0, 0};
    for (std::size_t k = 0; k < subscripts.size() && k < 2; ++k) {
        if (!EvalSubscript(evaluator, subscripts[k], index[k])) return nullptr;
    }
    CallArgument* slot = nullptr;
    MemoryRec* rec = Referent(found, &slot);
    if (rec == nullptr) return nullptr;
    flat = (rec->NI + 1) * index[1] + index[0];
    if (flat > rec->Ln) return nullptr;
    if (flat < 0) RaiseFault(FaultCode::SubscriptOutOfRange);
    return rec;
}

bool ClsCode::ReadVariable(Evaluator& evaluator, std::string_view name,
                           std::span<const SubscriptScan> subscripts, Place& place,
                           Complex& value) {
    if (subscripts.empty() && place.slot < 0 && IsCurrent(place)) {
        // A plain name found before in memory (or not at all): the record's
        // first element, as Element reaches it.
        const auto* page = static_cast<const ClsCode*>(place.owner);
        if (page == nullptr || place.index < 0 || place.index >= page->NumofMemory()) return false;
        place.values = &page->memory_[static_cast<std::size_t>(place.index)].Values;
        value = place.values->front();
        return true;
    }
    const Found found = Locate(name, place);
    if (found.kind == NameKind::None) return false;
    // A literal, expression or single element passed as argument is read as
    // it is, without subscripts.
    if (found.kind == NameKind::ElementParameter) {
        CallArgument* slot = nullptr;
        const MemoryRec* rec = Referent(found, &slot);
        if (rec == nullptr || slot->Flat > rec->Ln) return false;
    }
    if (found.kind == NameKind::ValueParameter || found.kind == NameKind::ElementParameter) {
        value = found.value;
        return true;
    }
    std::int32_t flat = 0;
    const MemoryRec* rec = Element(evaluator, found, subscripts, flat);
    if (rec == nullptr) return false;
    value = rec->Values[static_cast<std::size_t>(flat)];
    return true;
}

bool ClsCode::CallMatrixFunction(std::size_t index, std::span<const std::string_view> arguments,
                                 Complex& value) {
    std::vector<ComplexArray> arrays;
    for (std::string_view name : arguments) {
        const Found found = AzIsVariableSearch(name);
        CallArgument* slot = nullptr;
        const MemoryRec* rec = Referent(found, &slot);
        if (rec == nullptr) return false;
        arrays.push_back(ComplexArray{rec->NI, rec->NJ, rec->Values});
    }
    std::vector<const ComplexArray*> args;
    for (const ComplexArray& array : arrays)
        args.push_back(&array);
    std::optional<ComplexArray> array;
    const MatrixCode code = GetVocabulary().matrixFunctions.at(index).code;
    if (!ApplyMatrixFunction(code, args, value, array, [this] { CheckStop(); })) return false;
    if (array) arrayResult_ = std::move(array);
    return true;
}

ScanCache& ClsCode::Scans() {
    return session_.Scans();
}

void ClsCode::CheckStop() {
    // Events run only inside a program run, where the window expects them.
    if (session_.Busy()) LetEventsRun();
    if (session_.view().StopRequested()) throw StopRequest{};
}

void ClsCode::LetEventsRun() {
    session_.ShowRunningStatement();
    session_.LetViewEventsRun();
}

bool ClsCode::AStateMentDimension(std::span<const std::string_view> items) {
    try {
        for (std::string_view item : items) {
            if (!DeclareItem(item)) return false;
        }
    } catch (const RuntimeFault& fault) {
        SetErrorText(fault.description());
        return false;
    }
    return true;
}

// name | name(a) | name(a,b): a new variable, or the same shape again.
bool ClsCode::DeclareItem(std::string_view item) {
    NameWithSubscripts parsed;
    if (!SplitNameAndSubscripts(item, parsed) || ReportReserved(parsed.name)) return false;
    Evaluator evaluator(*this);
    std::int16_t bounds[2] = {0, 0};
    for (std::size_t k = 0; k < parsed.subscripts.size(); ++k) {
        if (Trim(parsed.subscripts[k]).empty()) return false;
        if (!EvalSubscript(evaluator, parsed.subscripts[k], bounds[k]) || bounds[k] < 0)
            return false;
    }
    const auto typ = static_cast<std::int16_t>(parsed.subscripts.size());
    const bool cs = session_.caseSensitive();
    for (const CallArgument& slot : arguments_) {
        if (SameName(slot.Name, parsed.name, cs)) return false;
    }
    for (const MemoryRec& rec : memory_) {
        if (!SameName(rec.Name, parsed.name, cs)) continue;
        return rec.Typ == typ && rec.NI == bounds[0] && rec.NJ == bounds[1];
    }
    AppendVariable(parsed.name, typ, bounds[0], bounds[1]);
    return true;
}

}  // namespace lapdesk
