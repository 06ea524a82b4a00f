#pragma once
// The arguments of a command line, split as the Microsoft C runtime splits them for a
// program's main(). The tools of a job script were written for that runtime, so their
// arguments are cut where it would cut them:
//   - blanks and tabs separate arguments, except inside double quotes;
//   - a double quote opens or closes a quoted run and is removed;
//   - inside a quoted run, "" is one literal double quote and the run goes on;
//   - 2n backslashes before a double quote give n backslashes, and the quote acts as above;
//   - 2n+1 backslashes before a double quote give n backslashes and a literal double quote;
//   - any other backslash is an ordinary character.

#include <string>
#include <vector>

namespace jobscript {

std::vector<std::string> SplitCrtArguments(const std::string& text);

}  // namespace jobscript
