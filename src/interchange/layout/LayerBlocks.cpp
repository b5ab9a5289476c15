#include "interchange/layout/LayerBlocks.h"

#include <algorithm>
#include <cstddef>
#include <limits>

#include "interchange/layout/At.h"

namespace vantrel {

namespace {

class BlockCompactor {
 public:
  BlockCompactor(const LayerGraph& pobjGraph, const LayerBlocks& pobjBlocks, const LayerDistances& pobjDistances)
      : mGraph(pobjGraph), mRoot(pobjBlocks.Root), mBlocks(pobjBlocks.Root.size()), mRows(pobjBlocks.Root.size(), 0) {
    for (std::size_t vertex = 0; vertex < mRoot.size(); ++vertex) {
      mBlocks[At(mRoot[vertex])].Members.push_back(static_cast<VertexIndex>(vertex));
    }
    for (const auto& layer : pobjBlocks.Layers) {
      for (std::size_t at = 1; at < layer.size(); ++at) {
        const double distance = pobjDistances.Between(layer[at - 1], layer[at]);
        const VertexIndex before = mRoot[At(layer[at - 1])];
        const VertexIndex after = mRoot[At(layer[at])];
        mBlocks[At(before)].After.push_back({after, distance});
        mBlocks[At(after)].Before.push_back({before, distance});
      }
    }
  }

  std::vector<double> Run() {
    FindOrder();
    for (const VertexIndex root : mOrder) mRows[At(root)] = Bounds(mBlocks[At(root)]).Low;
    constexpr int kRounds = 3;
    for (int round = 0; round < kRounds; ++round) {
      for (auto root = mOrder.rbegin(); root != mOrder.rend(); ++root) Settle(*root);
      for (const VertexIndex root : mOrder) Settle(root);
    }
    std::vector<double> rows(mRoot.size());
    for (std::size_t vertex = 0; vertex < rows.size(); ++vertex) rows[vertex] = Row(static_cast<VertexIndex>(vertex));
    return rows;
  }

 private:
  struct Neighbour {
    VertexIndex Root;
    double Distance;
  };
  struct Block {
    std::vector<VertexIndex> Members;
    std::vector<Neighbour> Before, After;
  };
  struct Range {
    double Low, High;
  };

  double Row(VertexIndex plngVertex) const { return mRows[At(mRoot[At(plngVertex)])]; }

  /// Blocks do not cross, so they can be ordered from top to bottom.
  void FindOrder() {
    std::vector<std::size_t> waiting(mBlocks.size());
    for (std::size_t block = 0; block < mBlocks.size(); ++block) {
      waiting[block] = mBlocks[block].Before.size();
      if (waiting[block] == 0 && !mBlocks[block].Members.empty()) mOrder.push_back(static_cast<VertexIndex>(block));
    }
    for (std::size_t at = 0; at < mOrder.size(); ++at) {
      for (const Neighbour& after : mBlocks[At(mOrder[at])].After) {
        if (--waiting[At(after.Root)] == 0) mOrder.push_back(after.Root);
      }
    }
  }

  /// The rows that the blocks before and after leave free.
  Range Bounds(const Block& pobjBlock) const {
    Range bounds{pobjBlock.Before.empty() ? 0 : std::numeric_limits<double>::lowest(), std::numeric_limits<double>::max()};
    for (const Neighbour& before : pobjBlock.Before) {
      bounds.Low = std::max(bounds.Low, mRows[At(before.Root)] + before.Distance);
    }
    for (const Neighbour& after : pobjBlock.After) {
      bounds.High = std::min(bounds.High, mRows[At(after.Root)] - after.Distance);
    }
    return bounds;
  }

  /// The sum of the distances to the ends of a block's edges is least between the two middle ones of them.
  void Settle(VertexIndex plngRoot) {
    const Block& block = mBlocks[At(plngRoot)];
    mEnds.clear();
    for (const VertexIndex member : block.Members) {
      for (const auto* neighbours : {&mGraph.Left[At(member)], &mGraph.Right[At(member)]}) {
        for (const VertexIndex neighbour : *neighbours) {
          if (mRoot[At(neighbour)] != plngRoot) mEnds.push_back(Row(neighbour));
        }
      }
    }
    if (mEnds.empty()) return;
    std::sort(mEnds.begin(), mEnds.end());
    const double wanted = std::clamp(mRows[At(plngRoot)], mEnds[(mEnds.size() - 1) / 2], mEnds[mEnds.size() / 2]);
    const Range bounds = Bounds(block);
    mRows[At(plngRoot)] = std::clamp(wanted, bounds.Low, std::max(bounds.Low, bounds.High));
  }

  const LayerGraph& mGraph;
  const std::vector<VertexIndex>& mRoot;
  std::vector<Block> mBlocks;       // by root; those of other vertices are empty
  std::vector<double> mRows;        // of roots
  std::vector<VertexIndex> mOrder;  // of roots
  std::vector<double> mEnds;        // of Settle
};

}  // namespace

std::vector<double> CompactBlocks(const LayerGraph& pobjGraph, const LayerBlocks& pobjBlocks, const LayerDistances& pobjDistances) {
  return BlockCompactor(pobjGraph, pobjBlocks, pobjDistances).Run();
}

}  // namespace vantrel
