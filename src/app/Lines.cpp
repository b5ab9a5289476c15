#include "app/Lines.h"

#include <algorithm>

namespace vantrel {

std::string OnOneLine(std::string pstrText) {
  std::replace_if(
      pstrText.begin(), pstrText.end(), [](unsigned char pstrByte) { return pstrByte < 0x20 || pstrByte == 0x7F; }, ' ');
  return pstrText;
}

}  // namespace vantrel
