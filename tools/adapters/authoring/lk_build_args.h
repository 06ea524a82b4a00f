#pragma once
// The switches of the lkVCDImager fork's lkvcdxbuild, as the lkVCDxBUILD job gives them,
// turned into those of Debian's vcdxbuild:
//   -x FILE      the descriptor
//   -i TYPE      cuebin, tocimg or nrg
//   -c FILE      the cue sheet (cuebin), or the TOC name without ".toc" (tocimg)
//   -b FILE      the BIN (cuebin), or the NRG image (nrg)
//   -s           2336-byte sectors
//   -v N         verbose
// An NRG goes through --nrg-file=: with --bin-file= vcdxbuild silently writes a BIN.

#include <optional>
#include <string>
#include <vector>

namespace authoring {

// vcdxbuild's arguments, the descriptor last; nullopt with the reason in `error` for an
// unknown switch or type, a switch without its value, or a type without its files.
std::optional<std::vector<std::string>> VcdxbuildArgsOfLk(const std::vector<std::string>& args,
                                                          std::string* error);

}  // namespace authoring
