#pragma once

#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>

#include "interchange/PnmlReader.h"

namespace vantrel::test {

/// A file with one net of this content.
inline std::string FileWith(const std::string& pstrContent) { return "<pnml><net id=\"n\" type=\"t\">" + pstrContent + "</net></pnml>"; }

inline PnmlNet Read(const std::string& pstrBytes, const PnmlOptions& pobjOptions = {}) {
  return PnmlReader(pobjOptions).ReadBytes(pstrBytes, "net.pnml");
}

/// The reader's error for bytes that it refuses; empty when it accepts them.
inline std::string RefusalOf(const std::string& pstrBytes, const PnmlOptions& pobjOptions = {}) {
  try {
    Read(pstrBytes, pobjOptions);
  } catch (const PnmlError& error) {
    return error.what();
  }
  return {};
}

/// Nodes as `kind id`, arcs as `source>target*weight`, in the order of the net.
inline std::string Outline(const PnmlNet& pobjNet) {
  std::string outline;
  for (const PnmlNode& node : pobjNet.Nodes) {
    outline += (node.Kind == PnmlKind::Place ? "P " : "T ") + node.Id + "; ";
  }
  for (const PnmlArc& arc : pobjNet.Arcs) outline += arc.Source + ">" + arc.Target + "*" + arc.Weight + "; ";
  return outline;
}

/// A net that another tool drew; empty if it is missing.
inline std::optional<std::string> FieldNet(const std::string& pstrFile) {
  const char* folder = std::getenv("VANTREL_NETS");
  if (folder == nullptr) return std::nullopt;
  const std::filesystem::path path = std::filesystem::path(folder) / pstrFile;
  if (!std::filesystem::exists(path)) return std::nullopt;
  return path.string();
}

}  // namespace vantrel::test
