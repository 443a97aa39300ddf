#pragma once

class QCoreApplication;

namespace velto {

// Puts Velto's texts in the user's language (from LANGUAGE, LC_ALL, LC_MESSAGES and LANG, as Qt reads the
// system locale) before anything shows one; English keeps its own texts, with their plural forms.
void installTranslations(QCoreApplication& application);

} // namespace velto
