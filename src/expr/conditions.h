// Condition texts: relational and logical operators over expressions.
#pragma once

#include <string>
#include <string_view>

namespace lapdesk {

// Replaces every synonym of the operator table ("<=", " And ", "Not ", ...)
// by its dotted form, in table order, so "a=<b" becomes "a.LE.b".
std::string ReplaceSynonyms(std::string_view condition);

}  // namespace lapdesk
