#include "persistence/SqlText.h"

#include "util/Variant.h"

namespace vantrel {

SqlText& SqlText::operator<<(const char* pstrPiece) {
  mstrText += pstrPiece;
  return *this;
}

SqlText& SqlText::operator<<(std::int32_t plngValue) {
  mstrText += std::to_string(plngValue);
  return *this;
}

SqlText& SqlText::operator<<(bool pblnValue) { return *this << (pblnValue ? "True" : "False"); }

SqlText& SqlText::operator<<(float psngValue) {
  mstrText += Variant(psngValue).ToText();
  return *this;
}

SqlText& SqlText::operator<<(Date pdtmValue) {
  mstrText += '#';
  mstrText += pdtmValue.ToText();
  mstrText += '#';
  return *this;
}

SqlText& SqlText::operator<<(SqlQuoted pText) {
  mstrText += '\'';
  for (const char c : pText.Text) {
    if (c == '\'') mstrText += c;
    mstrText += c;
  }
  mstrText += '\'';
  return *this;
}

SqlText& SqlText::operator<<(SqlList pList) {
  mstrText += '(';
  const char* separator = "";
  for (const std::int32_t id : pList.Ids) {
    *this << separator << id;
    separator = ", ";
  }
  mstrText += ')';
  return *this;
}

}  // namespace vantrel
