#include "transform/window/state_captions.h"

#include "values/number_text.h"

namespace lapdesk {

std::string NCaption(const Conditions& conditions) {
    return std::to_string(conditions.N);
}

std::string TCaption(const Conditions& conditions) {
    return DoubleToText(conditions.T);
}

std::string Gamma0Caption(const Conditions& conditions) {
    return DoubleToText(conditions.Gamma0);
}

std::string CosTableCaption(const TransformDriver& driver) {
    return std::to_string(driver.CosTableN());
}

std::string_view DataSourceCaption(DataSource source) {
    switch (source) {
        case DataSource::Program:
            return "Math";
        case DataSource::File:
            return "File";
        case DataSource::None:
            break;
    }
    return "Non";
}

std::string_view ResultCaption(bool hasResult) {
    return hasResult ? "OK" : "Non";
}

}  // namespace lapdesk
