// The protocol by which objects describe their settings and take them back.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "model/PropertyCollection.h"
#include "util/Object.h"

namespace vantrel {

/// An object whose settings a property grid can show and edit.
class ModelObject : public Object {
 public:
  /// New records of the object's current state, in the order in which a grid shows them. The caller owns them, unless the class says
  /// otherwise, as Token does.
  [[nodiscard]] virtual SharedProperties GetProperties() = 0;

  /// Stores the value of every record under its name, in the collection's order. Error 91 for null. Where a class stores some names
  /// directly in its fields, a value that does not convert throws its Error.
  virtual void SetProperties(const std::shared_ptr<PropertyCollection>& pcolProperties);

  /// Converts one value to the setting's type, stores it under a name (exact comparison), and marks the object and its workflow dirty.
  /// Shows the error of a value that does not convert in a message box, and then stores and marks nothing. Never throws Error.
  virtual void SetProperty(const std::string& pstrPropName, const Variant& pvarValue) = 0;

 protected:
  /// A share in the object, for as long as it needs itself while listeners may let go of it; null for one that nobody shares.
  virtual std::shared_ptr<const void> KeepAlive() const { return nullptr; }
  /// Runs one store and shows its Error in a message box. True when there was none.
  static bool Guarded(const std::function<void()>& pStore);
};

}  // namespace vantrel
