#pragma once

#include <QCoreApplication>

namespace velto {

// What the command line tells people, in one translation context whichever file says it, so the translation
// tools and the running program agree on where to find each text.
struct CommandLineTexts {
    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};

} // namespace velto
