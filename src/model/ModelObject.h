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
  /// Fresh records for the object's current state, in the order in which a grid shows them; the caller owns them. (Objects
  /// whose records are their own, such as tokens, say so.)
  virtual std::shared_ptr<PropertyCollection> GetProperties() = 0;

  /// Applies every record in the collection's order: its value, stored under its name. Error 91 for none. Where
  /// a class stores some names straight into its fields, a value that does not convert throws its Error to the caller.
  virtual void SetProperties(const std::shared_ptr<PropertyCollection>& pcolProperties);

  /// Stores one value under a name (exact comparison), converted to the setting's type, and marks the object and its
  /// workflow dirty. A value that does not convert is reported in a message box with the error's own text; then nothing
  /// is stored and nothing marked. Never throws Error.
  virtual void SetProperty(const std::string& pstrPropName, const Variant& pvarValue) = 0;

 protected:
  /// Runs one store and reports its Error in a message box. True when it went through.
  static bool Guarded(const std::function<void()>& pStore);
};

}  // namespace vantrel
