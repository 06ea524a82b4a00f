#pragma once
// scanbus.txt, the drive list that the lkVCDxRIP dialog reads by fixed counts from its end:
// heading lines, then one line per drive, each five blanks, the description in 32
// characters and the address in 7 ("1, 0, 0"), every line ended by CR LF.

#include "tools/adapters/lk/drive_list.h"

#include <string>

namespace lk {

std::string ScanbusText(const std::vector<Drive>& drives);

}  // namespace lk
