#pragma once

// How velto-fetch ends: the body on standard output after Fetched; the HTTP status (HttpStatus) or the network
// stack's words (Unreachable) on standard error.
namespace velto::fetch {
enum ExitCode : int { Fetched = 0, Usage = 1, Insecure = 2, TooLarge = 3, Unreachable = 4, HttpStatus = 5 };
} // namespace velto::fetch
