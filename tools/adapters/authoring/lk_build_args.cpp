#include "tools/adapters/authoring/lk_build_args.h"

#include <map>

namespace authoring {

std::optional<std::vector<std::string>> VcdxbuildArgsOfLk(const std::vector<std::string>& args,
                                                          std::string* error) {
    std::map<std::string, std::string> values;  // "-x" -> value
    bool sector2336 = false;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string& arg = args[i];
        if (arg == "-s") {
            sector2336 = true;
        } else if (arg == "-x" || arg == "-i" || arg == "-c" || arg == "-b" || arg == "-v") {
            if (i + 1 >= args.size() || args[i + 1].empty()) {
                *error = arg + " needs a value";
                return std::nullopt;
            }
            values[arg] = args[++i];
        } else {
            *error = "unknown argument " + arg;
            return std::nullopt;
        }
    }
    const std::string type = values["-i"];
    const std::string cue = values["-c"], bin = values["-b"];
    std::vector<std::string> out;
    if (values.count("-v"))
        out.push_back("-v");
    if (sector2336)
        out.push_back("--sector-2336");
    if (type == "cuebin" && !cue.empty() && !bin.empty())
        out.insert(out.end(), {"--image-type=bincue", "--cue-file=" + cue, "--bin-file=" + bin});
    else if (type == "tocimg" && !cue.empty())
        out.insert(out.end(), {"--image-type=cdrdao", "--cdrdao-file=" + cue});
    else if (type == "nrg" && !bin.empty())
        out.insert(out.end(), {"--image-type=nrg", "--nrg-file=" + bin});
    else
        *error = "give -i cuebin with -c and -b, -i tocimg with -c, or -i nrg with -b";
    if (values["-x"].empty() && error->empty())
        *error = "give the descriptor with -x";
    if (!error->empty())
        return std::nullopt;
    out.push_back(values["-x"]);
    return out;
}

}  // namespace authoring
