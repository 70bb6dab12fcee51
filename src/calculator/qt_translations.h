// Qt's own texts (file dialogs, OK/Cancel, Yes/No) in Japanese, as every
// other text of the windows is.
#pragma once

class QCoreApplication;
class QTranslator;

namespace lapdesk {

// Installs Qt's Japanese translation on the application, which owns it.
// Returns it, or nullptr when the translation files are not installed (the
// dialogs then speak English).
QTranslator* LoadQtTranslations(QCoreApplication& app);

}  // namespace lapdesk
