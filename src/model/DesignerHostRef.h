// A reference to a DesignerHost that is never null.
#pragma once

#include "model/DesignerHost.h"

namespace vantrel {

/// Refers to the built-in host while it holds no other one. Reset it before the host dies.
class DesignerHostRef {
 public:
  DesignerHostRef() = default;
  DesignerHostRef(DesignerHost* pobjHost) : mobjHost(pobjHost) {}
  DesignerHost* operator->() const { return get(); }
  DesignerHost& operator*() const { return *get(); }
  DesignerHost* get() const { return mobjHost ? mobjHost : &BuiltIn(); }
  friend bool operator==(const DesignerHostRef& a, const DesignerHost* b) { return a.mobjHost == b; }

  static DesignerHost& BuiltIn();

 private:
  DesignerHost* mobjHost = nullptr;
};

}  // namespace vantrel
