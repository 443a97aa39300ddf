#pragma once

#include "detection/GnomeExtension.h"

class QTextStream;

namespace velto {

struct CommandLine;

// `velto gnome-extension status|enable`: asks GNOME Shell and the user's settings directly, so no running Velto is
// needed. Spins a local event loop while the answers come.
class GnomeExtensionCommand final {
public:
    // The extension is not owned.
    explicit GnomeExtensionCommand(GnomeExtensionControlling& extension, int timeoutMs = 15000);

    // Prints the state (after enabling, for enable) and returns the exit status: failure without GNOME Shell,
    // without the extension, or when it could not be enabled or started.
    [[nodiscard]] int run(const CommandLine& commandLine, QTextStream& out, QTextStream& err);

    [[nodiscard]] static QString statusJson(GnomeExtensionState state, bool canEnable);

private:
    // The facts after one more gathering; none when it did not finish in time.
    std::optional<GnomeExtensionFacts> gather();
    // The error enabling gave (empty on success); none when it did not finish in time.
    std::optional<QString> enable();

    GnomeExtensionControlling& m_extension;
    int m_timeoutMs;
};

} // namespace velto
