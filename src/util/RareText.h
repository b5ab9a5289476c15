// Text that most objects leave empty, in one pointer.
#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace vantrel {

/// Reads and assigns like a std::string and takes 8 bytes while it is empty. For objects of which there are millions.
class RareText {
 public:
  RareText() = default;
  RareText(std::string_view pstrText) { Assign(pstrText); }
  RareText(const std::string& pstrText) { Assign(pstrText); }
  RareText(const char* pstrText) { Assign(pstrText); }
  RareText(const RareText& pobjOther) { Assign(pobjOther.str()); }
  RareText(RareText&&) noexcept = default;
  RareText& operator=(const RareText& pobjOther) {
    if (this != &pobjOther) Assign(pobjOther.str());
    return *this;
  }
  RareText& operator=(RareText&&) noexcept = default;
  ~RareText() = default;

  const std::string& str() const {
    static const std::string empty;
    return mText ? *mText : empty;
  }
  operator const std::string&() const { return str(); }
  bool empty() const { return !mText; }

  friend bool operator==(const RareText& a, std::string_view b) { return a.str() == b; }
  friend bool operator==(const RareText& a, const std::string& b) { return a.str() == b; }
  friend bool operator==(const RareText& a, const char* b) { return a.str() == b; }
  friend bool operator==(const RareText& a, const RareText& b) { return a.str() == b.str(); }

 private:
  void Assign(std::string_view pstrText) { mText = pstrText.empty() ? nullptr : std::make_unique<std::string>(pstrText); }

  std::unique_ptr<std::string> mText;
};

}  // namespace vantrel
