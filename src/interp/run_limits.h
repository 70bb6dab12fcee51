// Internal to the interpreter: the signal that user-function calls nested
// too deeply. It passes every page on the way out and is trapped by the
// outermost run, so one message reports it instead of one per level.
#pragma once

namespace lapdesk {

struct CallsTooDeep {};

}  // namespace lapdesk
