// scanbus.exe, which the lkVCDxRIP dialog's scanbus.bat starts with the tool folder as its
// current directory: the machine's CD drives into scanbus.txt, and only then "***done***"
// at the start of message.txt, which the dialog polls. No drive is an ordinary outcome.

#include "tools/adapters/lk/scanbus_text.h"

#include <cstdio>

namespace {

bool WriteFile(const char* name, const std::string& text) {
    std::FILE* file = std::fopen(name, "wb");
    if (file == nullptr)
        return false;
    const bool written = std::fwrite(text.data(), 1, text.size(), file) == text.size();
    return std::fclose(file) == 0 && written;
}

}  // namespace

int main() {
    const bool listed = WriteFile("scanbus.txt", lk::ScanbusText(lk::ListDrives()));
    if (!listed)
        std::perror("scanbus.exe: scanbus.txt");
    // The dialog waits for this line whatever came of the scan; a missing list fails it.
    return WriteFile("message.txt", "***done***\r\n") && listed ? 0 : 1;
}
