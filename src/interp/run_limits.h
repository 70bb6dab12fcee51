// Internal to the interpreter: signals that end a run from deep inside it.
// They pass every page on the way out and are trapped where a run or an
// immediate evaluation began.
#pragma once

namespace lapdesk {

// User-function calls nested too deeply; the outermost run reports it once
// instead of once per level.
struct CallsTooDeep {};

// The user asked to stop while one long expression or matrix routine was at
// work; it ends the run as a stop between lines does, without a message.
struct StopRequest {};

}  // namespace lapdesk
