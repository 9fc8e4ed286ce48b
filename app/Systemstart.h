// What the system hands to a program that starts: its words and the console that it was called from.
#pragma once

#include <string>
#include <vector>

namespace zrw {

/// The words of the command line after the name of the program, UTF-8.
[[nodiscard]] std::vector<std::string> Aufrufworte(int argc, char** argv);

/// Windows gives a program with a window no console, not even the one that it was called from. Its streams
/// that lead nowhere then lead there; it shows UTF-8 until the program ends. Elsewhere they do anyway.
void VerbindeKonsole();

}  // namespace zrw
