// A value whose type is known only at run time: what property records, options and database fields hold.
#pragma once

#include <compare>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <variant>

#include "util/Date.h"
#include "util/Object.h"

namespace vantrel {

/// Empty, null, or a boolean, number, date, text or object. 16 bytes; text and objects are on the heap.
/// A copy copies text and shares objects. Numbers are written and read with a decimal point in every locale.
class Variant {
 public:
  /// The null of a database. The empty variant is something else: it has not been given a value yet.
  struct NullValue {
    auto operator<=>(const NullValue&) const = default;
  };
  static constexpr NullValue Null{};

  Variant() = default;
  Variant(NullValue pNull) : mValue(pNull) {}
  Variant(bool pblnValue) : mValue(pblnValue) {}
  Variant(std::int16_t pintValue) : mValue(pintValue) {}
  Variant(std::int32_t plngValue) : mValue(plngValue) {}
  Variant(float psngValue) : mValue(psngValue) {}
  Variant(double pdblValue) : mValue(pdblValue) {}
  Variant(Date pdtmValue) : mValue(pdtmValue) {}
  Variant(std::string pstrValue) : mValue(Boxed<std::string>(std::move(pstrValue))) {}
  Variant(std::string_view pstrValue) : Variant(std::string(pstrValue)) {}
  Variant(const char* pstrValue) : Variant(std::string(pstrValue)) {}
  template <class T>
  requires std::is_convertible_v<T*, Object*> Variant(const std::shared_ptr<T>& pobjValue)
      : mValue(Boxed<ObjectPointer>(ObjectPointer(pobjValue))) {}

  bool IsEmpty() const { return std::holds_alternative<std::monostate>(mValue); }
  bool IsNull() const { return std::holds_alternative<NullValue>(mValue); }
  bool IsText() const { return std::holds_alternative<Boxed<std::string>>(mValue); }
  bool IsObject() const { return std::holds_alternative<Boxed<ObjectPointer>>(mValue); }
  bool IsDate() const { return std::holds_alternative<Date>(mValue); }
  bool IsBoolean() const { return std::holds_alternative<bool>(mValue); }
  bool IsNumber() const;

  /// Conversions throw Error 13 for a value of another kind and Error 6 for one that the type cannot hold. Fractions round half to
  /// even. True converts to -1 and "True", the empty variant to 0, false and "". Null converts to nothing: Error 13.
  std::string ToText() const;
  std::int16_t ToInt16() const;
  std::int32_t ToInt32() const;
  float ToSingle() const;
  double ToDouble() const;
  bool ToBoolean() const;
  Date ToDate() const;
  /// The object itself, or null for an empty variant; Error 13 for any other value.
  std::shared_ptr<Object> ToObject() const;

  /// The object as a T; Error 13 when it is not a T or is null.
  template <class T>
  std::shared_ptr<T> ToObjectOf() const {
    auto object = std::dynamic_pointer_cast<T>(ToObject());
    if (!object) throw Error(vntErrTypeMismatch);
    return object;
  }

  /// Same kind and same value; objects are equal when they are the same object.
  friend bool operator==(const Variant&, const Variant&) = default;
  /// Orders numbers, booleans and dates by value and texts by their bytes. A number comes before a text; the empty variant counts as 0
  /// or "". Error 13 for null and objects.
  friend std::partial_ordering Compare(const Variant& pvarA, const Variant& pvarB);

 private:
  using ObjectPointer = std::shared_ptr<Object>;

  template <class T>
  class Boxed {
   public:
    explicit Boxed(T pValue) : mBox(std::make_unique<T>(std::move(pValue))) {}
    Boxed(const Boxed& pobjOther) : mBox(std::make_unique<T>(*pobjOther.mBox)) {}
    Boxed(Boxed&&) noexcept = default;
    Boxed& operator=(const Boxed& pobjOther) {
      mBox = std::make_unique<T>(*pobjOther.mBox);
      return *this;
    }
    Boxed& operator=(Boxed&&) noexcept = default;
    ~Boxed() = default;

    const T& operator*() const { return *mBox; }
    friend bool operator==(const Boxed& a, const Boxed& b) { return *a == *b; }

   private:
    std::unique_ptr<T> mBox;
  };

  std::variant<std::monostate, NullValue, bool, std::int16_t, std::int32_t, float, double, Date, Boxed<std::string>, Boxed<ObjectPointer>>
      mValue;
};

/// Reads the whole text, without blanks around it, as a decimal number with an optional fraction and exponent. False when it is not one.
bool ParseNumber(std::string_view pstrText, double& pdblNumber);

}  // namespace vantrel
