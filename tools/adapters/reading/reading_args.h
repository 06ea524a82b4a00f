#pragma once
// The command line of a reading adapter, as the job scripts give it: switches and
// "--name=value" options, each one argument. The adapter hands the switches it does not
// handle itself on to the real tool in their order.

#include <optional>
#include <string>
#include <vector>

namespace reading {

struct ReadingArgs {
    std::string binFile;     // --bin-file=
    std::string nrgFile;     // --nrg-file=
    std::string device;      // --cdrom-device=: a CD drive
    std::string outputFile;  // --output-file=
    bool sector2336 = false;
    std::vector<std::string> switches;  // the others of `knownSwitches`, in order
};

// Accepts "--sector-2336", the switches of `knownSwitches`, and the options of
// `knownOptions` (of "--bin-file=", "--nrg-file=", "--cdrom-device=", "--output-file="), none
// with an empty
// value. Nullopt, with the reason in `error`, for anything else.
std::optional<ReadingArgs> ParseReadingArgs(const std::vector<std::string>& args,
                                            const std::vector<std::string>& knownSwitches,
                                            const std::vector<std::string>& knownOptions,
                                            std::string* error);

}  // namespace reading
