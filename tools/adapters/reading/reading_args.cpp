#include "tools/adapters/reading/reading_args.h"

#include <algorithm>

namespace reading {

namespace {

bool Contains(const std::vector<std::string>& list, const std::string& item) {
    return std::find(list.begin(), list.end(), item) != list.end();
}

// The field of `args` that the option `name` fills.
std::string* OptionField(ReadingArgs& args, const std::string& name) {
    if (name == "--bin-file=")
        return &args.binFile;
    if (name == "--nrg-file=")
        return &args.nrgFile;
    if (name == "--cdrom-device=")
        return &args.device;
    if (name == "--output-file=")
        return &args.outputFile;
    return nullptr;
}

}  // namespace

std::optional<ReadingArgs> ParseReadingArgs(const std::vector<std::string>& args,
                                            const std::vector<std::string>& knownSwitches,
                                            const std::vector<std::string>& knownOptions,
                                            std::string* error) {
    ReadingArgs parsed;
    for (const std::string& arg : args) {
        const std::size_t equals = arg.find('=');
        const std::string name = arg.substr(0, equals == std::string::npos ? 0 : equals + 1);
        if (arg == "--sector-2336") {
            parsed.sector2336 = true;
        } else if (Contains(knownSwitches, arg)) {
            parsed.switches.push_back(arg);
        } else if (!name.empty() && Contains(knownOptions, name) && OptionField(parsed, name)) {
            if (arg.size() == name.size()) {
                *error = "no file name after " + name;
                return std::nullopt;
            }
            *OptionField(parsed, name) = arg.substr(name.size());
        } else {
            *error = "unknown argument \"" + arg + "\"";
            return std::nullopt;
        }
    }
    return parsed;
}

}  // namespace reading
