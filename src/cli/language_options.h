// The language options shared by the verbs that run the calculator language.
#pragma once

namespace CLI {
class App;
}

namespace lapdesk {
class Interpreter;
}

namespace lapdesk::cli {

struct LanguageOptions {
    bool rounded = false;
    bool ignoreCase = false;
    bool degrees = false;

    void AddTo(CLI::App& command);
    // Sets the session's name comparison and the angle unit.
    void ApplyTo(Interpreter& session) const;
};

}  // namespace lapdesk::cli
