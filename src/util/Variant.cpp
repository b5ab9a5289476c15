#include "util/Variant.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace vantrel {

namespace {

std::string_view Trimmed(std::string_view pstrText) {
  const auto first = pstrText.find_first_not_of(" \t\r\n");
  if (first == std::string_view::npos) return {};
  return pstrText.substr(first, pstrText.find_last_not_of(" \t\r\n") - first + 1);
}

bool EqualsIgnoringCase(std::string_view pstrA, std::string_view pstrLower) {
  if (pstrA.size() != pstrLower.size()) return false;
  for (std::size_t i = 0; i < pstrA.size(); ++i) {
    const char c = pstrA[i];
    if ((c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c) != pstrLower[i]) return false;
  }
  return true;
}

template <class Number>
std::string NumberText(Number pNumber) {
  std::array<char, 64> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), pNumber).ptr;
  return {text.data(), end};
}

// Digits as people write them, while there are not too many.
template <class Real>
std::string RealText(Real pNumber) {
  const double size = std::abs(static_cast<double>(pNumber));
  if (size != 0 && (size < 1e-5 || size >= 1e15)) return NumberText(pNumber);
  std::array<char, 64> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), pNumber, std::chars_format::fixed).ptr;
  return {text.data(), end};
}

template <class Integer>
Integer ToInteger(double pdblValue) {
  const double rounded = std::nearbyint(pdblValue);
  if (!(rounded >= std::numeric_limits<Integer>::min() && rounded <= std::numeric_limits<Integer>::max())) {
    throw Error(vntErrOverflow);
  }
  return static_cast<Integer>(rounded);
}

}  // namespace

bool ParseNumber(std::string_view pstrText, double& pdblNumber) {
  std::string_view text = Trimmed(pstrText);
  if (text.starts_with('+')) text.remove_prefix(1);
  if (text.starts_with('+') || (text.starts_with('-') && text.data() != Trimmed(pstrText).data())) return false;
  const bool startsLikeNumber = !text.empty() && text.find_first_not_of("0123456789.eE+-") == std::string_view::npos;
  if (!startsLikeNumber) return false;  // from_chars would take "inf" and "nan"
  const auto [end, problem] = std::from_chars(text.data(), text.data() + text.size(), pdblNumber);
  return problem == std::errc{} && end == text.data() + text.size();
}

bool Variant::IsNumber() const {
  return std::holds_alternative<std::int16_t>(mValue) || std::holds_alternative<std::int32_t>(mValue) ||
         std::holds_alternative<float>(mValue) || std::holds_alternative<double>(mValue);
}

std::string Variant::ToText() const {
  struct Visitor {
    std::string operator()(std::monostate) const { return {}; }
    std::string operator()(NullValue) const { throw Error(vntErrTypeMismatch); }
    std::string operator()(bool pblnValue) const { return pblnValue ? "True" : "False"; }
    std::string operator()(std::int16_t pintValue) const { return NumberText(pintValue); }
    std::string operator()(std::int32_t plngValue) const { return NumberText(plngValue); }
    std::string operator()(float psngValue) const { return RealText(psngValue); }
    std::string operator()(double pdblValue) const { return RealText(pdblValue); }
    std::string operator()(Date pdtmValue) const { return pdtmValue.ToText(); }
    std::string operator()(const Boxed<std::string>& pstrValue) const { return *pstrValue; }
    std::string operator()(const Boxed<ObjectPointer>&) const { throw Error(vntErrTypeMismatch); }
  };
  return std::visit(Visitor{}, mValue);
}

double Variant::ToDouble() const {
  struct Visitor {
    double operator()(std::monostate) const { return 0; }
    double operator()(NullValue) const { throw Error(vntErrTypeMismatch); }
    double operator()(bool pblnValue) const { return pblnValue ? -1 : 0; }
    double operator()(std::int16_t pintValue) const { return pintValue; }
    double operator()(std::int32_t plngValue) const { return plngValue; }
    double operator()(float psngValue) const { return static_cast<double>(psngValue); }
    double operator()(double pdblValue) const { return pdblValue; }
    double operator()(Date pdtmValue) const { return pdtmValue.Days(); }
    double operator()(const Boxed<std::string>& pstrValue) const {
      double number = 0;
      if (!ParseNumber(*pstrValue, number)) throw Error(vntErrTypeMismatch);
      return number;
    }
    double operator()(const Boxed<ObjectPointer>&) const { throw Error(vntErrTypeMismatch); }
  };
  return std::visit(Visitor{}, mValue);
}

std::int16_t Variant::ToInt16() const { return ToInteger<std::int16_t>(ToDouble()); }

std::int32_t Variant::ToInt32() const { return ToInteger<std::int32_t>(ToDouble()); }

float Variant::ToSingle() const {
  const double value = ToDouble();
  if (std::abs(value) > static_cast<double>(std::numeric_limits<float>::max())) throw Error(vntErrOverflow);
  return static_cast<float>(value);
}

bool Variant::ToBoolean() const {
  if (const auto* text = std::get_if<Boxed<std::string>>(&mValue)) {
    if (EqualsIgnoringCase(Trimmed(**text), "true")) return true;
    if (EqualsIgnoringCase(Trimmed(**text), "false")) return false;
  }
  return ToDouble() != 0;
}

Date Variant::ToDate() const {
  if (const auto* date = std::get_if<Date>(&mValue)) return *date;
  return Date::FromDays(ToDouble());
}

std::shared_ptr<Object> Variant::ToObject() const {
  if (const auto* object = std::get_if<Boxed<ObjectPointer>>(&mValue)) return **object;
  if (!IsEmpty()) throw Error(vntErrTypeMismatch);
  return nullptr;
}

std::partial_ordering Compare(const Variant& pvarA, const Variant& pvarB) {
  if (pvarA.IsText() && pvarB.IsText()) return pvarA.ToText() <=> pvarB.ToText();
  if (pvarA.IsText() && pvarB.IsEmpty()) return pvarA.ToText() <=> std::string();
  if (pvarB.IsText() && pvarA.IsEmpty()) return std::string() <=> pvarB.ToText();
  if (pvarA.IsText()) return pvarB.ToDouble(), std::partial_ordering::greater;
  if (pvarB.IsText()) return pvarA.ToDouble(), std::partial_ordering::less;
  return pvarA.ToDouble() <=> pvarB.ToDouble();
}

}  // namespace vantrel
