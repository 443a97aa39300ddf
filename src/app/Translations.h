#pragma once

class QCoreApplication;

namespace velto {

// Puts Velto's texts in the user's language (from LANGUAGE, LC_ALL, LC_MESSAGES and LANG, as Qt reads the
// system locale) before anything shows one; English keeps its own texts, with their plural forms.
void installTranslations(QCoreApplication& application);

// While one exists, Velto's texts come out in English whatever the user's language: for what scripts read
// (`velto status --json`), which must not change with the language. Main thread.
class ScopedEnglishTexts final {
public:
    ScopedEnglishTexts();
    ~ScopedEnglishTexts();
    ScopedEnglishTexts(const ScopedEnglishTexts&) = delete;
    ScopedEnglishTexts& operator=(const ScopedEnglishTexts&) = delete;
};

} // namespace velto
