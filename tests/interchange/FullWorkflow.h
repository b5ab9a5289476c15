#pragma once

#include <memory>
#include <string>

#include "model/Workflow.h"

namespace vantrel::test {

/// SmallWorkflow with a different value in every stored field, and a note.
std::shared_ptr<Workflow> FullWorkflow();

/// A record with something in every field, and two options.
std::shared_ptr<PropertyRecord> Definition(const std::string& pstrName, const Variant& pvarValue);

}  // namespace vantrel::test
