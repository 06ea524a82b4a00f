#pragma once
// Unbuffered output. A terminal reader watches the console's screen while a job runs, so
// every piece of text goes out with its own write(2), never held back in a buffer.

#include <string>

namespace jobscript {

constexpr char kLineEnd[] = "\r\n";

// Writes all of `text` to `fd`, retrying partial writes; a closed output loses the text.
void WriteAll(int fd, const std::string& text);

void WriteOut(const std::string& text);
void WriteError(const std::string& text);

}  // namespace jobscript
