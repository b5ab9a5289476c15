// Pictures that images show, and lists of them.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace vantrel {

/// A picture known by name. Painters know what it looks like; the chart needs only its size.
struct Picture {
  std::string Key;
  float Width = 0, Height = 0;  ///< natural size in twips
};

/// Pictures by key. A picture belongs to its list and to every image that shows it.
class ImageList {
 public:
  void Add(std::string pstrKey, float psngWidth, float psngHeight) {
    auto picture = std::make_shared<const Picture>(Picture{pstrKey, psngWidth, psngHeight});
    mPictures.insert_or_assign(std::move(pstrKey), std::move(picture));
  }
  /// The picture, or null when the list has none of that name. The reference holds until the key is added again.
  const std::shared_ptr<const Picture>& Find(std::string_view pstrKey) const {
    static const std::shared_ptr<const Picture> none;
    const auto found = mPictures.find(pstrKey);
    return found == mPictures.end() ? none : found->second;
  }

  /// The list of the designer's own pictures ("VantrelImages"): objects of 32 pixels, connectors of 8, handles of 6.
  static ImageList VantrelImages();

 private:
  // Both ends of a key and its length tell pictures apart. Each node looks up three pictures when it is drawn.
  struct Hash {
    using is_transparent = void;
    std::size_t operator()(std::string_view pstrKey) const {
      std::uint64_t head = 0, tail = 0;
      const std::size_t size = std::min(sizeof head, pstrKey.size());
      std::memcpy(&head, pstrKey.data(), size);
      std::memcpy(&tail, pstrKey.data() + (pstrKey.size() - size), size);
      return (head ^ (tail * 31 + pstrKey.size())) * 0x9E3779B97F4A7C15 >> 32;
    }
  };
  std::unordered_map<std::string, std::shared_ptr<const Picture>, Hash, std::equal_to<>> mPictures;
};

}  // namespace vantrel
