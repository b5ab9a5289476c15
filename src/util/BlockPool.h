// Memory for objects of one class that come in millions.
#pragma once

#include <cstddef>
#include <cstdint>
#include <new>

namespace vantrel {

/// Cuts slabs of memory into blocks of one size, for a tenth of malloc's instructions. A slab goes back to the heap with its
/// last block, but for one that waits for the next object. One pool a size and process; for one thread.
template <std::size_t kSize>
class BlockPool {
 public:
  static void* Take() {
    Slab* const slab = sOpen ? sOpen : Open();
    Block* block = slab->Free;
    if (block) {
      slab->Free = block->Next;
    } else {
      block = &slab->Blocks[slab->Begun++];
      block->Owner = slab;
    }
    if (++slab->Used == kBlocks) Unlink(*slab);
    return block->Room;
  }

  static void GiveBack(void* pRoom) {
    auto* const block = reinterpret_cast<Block*>(static_cast<std::byte*>(pRoom) - offsetof(Block, Room));
    Slab& slab = *block->Owner;
    block->Next = slab.Free;
    slab.Free = block;
    if (slab.Used-- == kBlocks) Link(slab);
    if (slab.Used != 0 || (!slab.Before && !slab.After)) return;
    Unlink(slab);
    delete &slab;
  }

 private:
  static constexpr std::size_t kSlab = 32 * 1024;  // small enough for malloc to take it from its heap

  struct Slab;
  struct Block {
    Slab* Owner;
    union {
      Block* Next;  // of the free ones
      std::byte Room[kSize];
    };
  };
  static constexpr std::uint32_t kBlocks = kSlab / sizeof(Block) - 1;
  // Left as the heap gave it but for the fields that say otherwise.
  struct Slab {
    Slab *Before = nullptr, *After = nullptr;  // of those with room
    Block* Free = nullptr;
    std::uint32_t Begun = 0, Used = 0;
    Block Blocks[kBlocks];
  };

  static Slab* Open() {
    auto* const slab = new Slab;
    Link(*slab);
    return slab;
  }
  static void Link(Slab& pobjSlab) {
    pobjSlab.After = sOpen;
    if (sOpen) sOpen->Before = &pobjSlab;
    sOpen = &pobjSlab;
  }
  static void Unlink(Slab& pobjSlab) {
    (pobjSlab.Before ? pobjSlab.Before->After : sOpen) = pobjSlab.After;
    if (pobjSlab.After) pobjSlab.After->Before = pobjSlab.Before;
    pobjSlab.Before = pobjSlab.After = nullptr;
  }

  static inline Slab* sOpen = nullptr;
};

/// Lets std::allocate_shared take one object and its counts from a pool. With the address sanitizer each has memory of its own.
template <class T>
struct PoolAllocator {
  using value_type = T;
  PoolAllocator() = default;
  template <class U>
  PoolAllocator(const PoolAllocator<U>&) {}

#if defined(__SANITIZE_ADDRESS__)
  static constexpr bool kPools = false;
#elif defined(__has_feature)
  static constexpr bool kPools = !__has_feature(address_sanitizer);
#else
  static constexpr bool kPools = true;
#endif

  T* allocate(std::size_t /*plngOne*/) {
    static_assert(alignof(T) <= alignof(void*));
    return static_cast<T*>(kPools ? BlockPool<sizeof(T)>::Take() : ::operator new(sizeof(T)));
  }
  void deallocate(T* pAt, std::size_t /*plngOne*/) {
    if constexpr (kPools) {
      BlockPool<sizeof(T)>::GiveBack(pAt);
    } else {
      ::operator delete(pAt);
    }
  }
  friend bool operator==(const PoolAllocator&, const PoolAllocator&) { return true; }
};

}  // namespace vantrel
