// A matrix product from block to block: what is widened when, and in which memory.
#pragma once

#include <algorithm>
#include <cstring>

#include "linalg/micro_kernel.h"
#include "linalg/panels.h"
#include "linalg/result.h"
#include "linalg/scratch.h"
#include "linalg/settlement.h"
#include "linalg/thin_products.h"

namespace zthalf::linalg {

// Outputs are finished in blocks of so many rows by tileSize columns: their sums wait in memory while the inner
// dimension passes by, so a stretch of the right operand is widened once for all of these rows.
inline constexpr unsigned long blockRows = 4 * tileSize;

// As many numbers of the left operand are widened at a time, on their way to the panels.
inline constexpr unsigned long stageSize = 2048;

inline unsigned long roundedUp(unsigned long n, unsigned long unit) { return (n + unit - 1) / unit * unit; }

template <class Base, bool isComplex, bool isOneChain>
class blockedProduct {
  static_assert(blockRows <= sweptRows);

 public:
  // out is m by n, dense. A product with one chain has a matrix of its own for its outputs, and needs none.
  blockedProduct(operand<Base> const& a, operand<Base> const& b, std::uint16_t* out, unsigned long m, unsigned long k,
                 unsigned long n, chainBegins begins = {})
      : a_(a),
        b_(b),
        begins_(begins),
        out_(out),
        m_(m),
        k_(k),
        n_(n),
        shape_(panelShapeOfLevel<Base, isComplex>()),
        memory_(bytes()) {
    aTile_ = memory_.take<Base>(aSize() * parts);
    stage_ = memory_.take<Base>(stageTotal() * parts);
    bTile_ = memory_.take<Base>(bSize() * parts);
    cTile_ = memory_.take<Base>(cSize() * parts);
    lanes_ = memory_.take<float>(lanesSize());
    together_ = memory_.take<Base>(togetherSize() * parts);
    specials_.ofRows = memory_.take<std::uint32_t>(wordCount * tileRows());
    specials_.ofColumns = memory_.take<std::uint32_t>(wordCount * tileColumns());
    if constexpr (isOneChain) out_ = memory_.take<std::uint16_t>(m_ * n_);
  }

  std::uint16_t const* out() const { return out_; }

  void run() {
    for (unsigned long j0 = 0; j0 < n_; j0 += tileSize) {
      for (unsigned long i0 = 0; i0 < m_; i0 += blockRows) {
        finishBlock(i0, std::min(blockRows, m_ - i0), j0, std::min(tileSize, n_ - j0));
      }
    }
  }

 private:
  static constexpr unsigned parts = isComplex ? 2 : 1;

  // The largest tiles there will be.
  unsigned long tileRows() const { return std::min(m_, tileSize); }
  unsigned long tileDepth() const { return std::min(k_, tileSize); }
  unsigned long tileColumns() const { return std::min(n_, tileSize); }
  bool isOnePanel() const { return m_ <= shape_.rows; }
  bool isLow() const { return m_ < chunkSize; }

  // A single panel stays as it was read; behind its last column a vector may reach over the end.
  unsigned long aSize() const {
    return chunkSize +
           (isOnePanel() ? m_ * tileDepth() + shape_.rows : roundedUp(tileRows(), shape_.rows) * tileDepth());
  }
  unsigned long stageTotal() const {
    return isOnePanel() ? 0 : std::max(stageSize, tileRows()) + shape_.rows + chunkSize;
  }
  unsigned long bSize() const { return tileDepth() * tileColumns() + chunkSize; }
  unsigned long cStride() const { return roundedUp(std::min(m_, blockRows), shape_.width); }
  // Behind the last column a chunk may reach over the end.
  unsigned long cSize() const { return cStride() * tileColumns() + chunkSize; }
  unsigned long togetherSize() const { return isLow() ? m_ * tileColumns() + chunkSize : 0; }
  unsigned long lanesSize() const { return isThin() && m_ > 1 ? laneCount * sweptRows : 0; }
  std::size_t bytes() const {
    return scratch::bytesFor<Base>(aSize() * parts) + scratch::bytesFor<Base>(stageTotal() * parts) +
           scratch::bytesFor<Base>(bSize() * parts) + scratch::bytesFor<Base>(cSize() * parts) +
           scratch::bytesFor<Base>(togetherSize() * parts) + scratch::bytesFor<float>(lanesSize()) +
           scratch::bytesFor<std::uint32_t>(wordCount * tileRows()) +
           scratch::bytesFor<std::uint32_t>(wordCount * tileColumns()) +
           (isOneChain ? scratch::bytesFor<std::uint16_t>(m_ * n_) : 0);
  }

  Base* imaginary(Base* re, unsigned long plane) const { return isComplex ? re + plane : nullptr; }

  void finishBlock(unsigned long i0, unsigned long rows, unsigned long j0, unsigned long columns) {
    begin(i0, rows, j0, columns);
    if (isThin()) {
      addThin(i0, rows, j0, columns);
    } else {
      addTiles(i0, rows, j0, columns);
    }
    finish(i0, rows, j0, columns);
  }

  void begin(unsigned long i0, unsigned long rows, unsigned long j0, unsigned long columns) {
    std::memset(cTile_, 0, cSize() * parts * sizeof(Base));
    if constexpr (isOneChain) {
      if (pattern::isZero(begins_.beta)) return;
      const auto scale = leveled<chainBeginsPass, std::uint16_t const*, unsigned long, std::uint16_t, float*>::chosen();
      for (unsigned long j = 0; j < columns; ++j) {
        scale(begins_.c + i0 + (j0 + j) * begins_.leading, rows, begins_.beta, cTile_ + j * cStride());
      }
    }
  }

  void addTiles(unsigned long i0, unsigned long rows, unsigned long j0, unsigned long columns) {
    for (unsigned long l0 = 0; l0 < k_; l0 += tileSize) {
      const unsigned long depth = std::min(tileSize, k_ - l0);
      b_.read(l0, depth, j0, columns, bTile_, imaginary(bTile_, bSize()));
      for (unsigned long i = 0; i < rows; i += tileSize) {
        const unsigned long height = std::min(tileSize, rows - i);
        readLeft(i0 + i, height, l0, depth);
        addTile(i, height, columns, depth);
      }
    }
  }

  // One side a vector, the other one a matrix of halves.
  bool isThin() const {
    if constexpr (std::is_same_v<Base, float> && !isComplex && !isOneChain) {
      return m_ == 1 ? b_.halfAt(0, 0) != nullptr : n_ == 1 && m_ >= chunkSize && a_.halfAt(0, 0) != nullptr;
    }
    return false;
  }

  void addThin(unsigned long i0, unsigned long rows, unsigned long j0, unsigned long columns) {
    if constexpr (std::is_same_v<Base, float>) {
      for (unsigned long l0 = 0; l0 < k_; l0 += tileSize) {
        const unsigned long depth = std::min(tileSize, k_ - l0);
        if (m_ == 1) {
          a_.read(0, 1, l0, depth, aTile_, nullptr);
          std::fill_n(aTile_ + depth, laneCount, 0.0f);
          const dottedColumns dotted{b_.halfAt(l0, j0), k_, columns, aTile_, depth, cTile_, cStride()};
          leveled<dotPass, dottedColumns const*>::chosen()(&dotted);
        } else {
          b_.read(l0, depth, 0, 1, bTile_, nullptr);
          const sweptColumns swept{a_.halfAt(i0, l0), m_, rows, bTile_, depth, lanes_, cTile_};
          leveled<sweepPass, sweptColumns const*>::chosen()(&swept);
        }
      }
    }
  }

  void readLeft(unsigned long i0, unsigned long rows, unsigned long l0, unsigned long depth) {
    if (isOnePanel()) {
      a_.read(i0, rows, l0, depth, aTile_, imaginary(aTile_, aSize()));
      for (unsigned p = 0; p < parts; ++p) std::fill_n(aTile_ + p * aSize() + rows * depth, shape_.rows, Base{0});
      return;
    }
    const auto place = leveled<placePass<Base, isComplex>, stagedColumns<Base> const*>::chosen();
    const unsigned long batch = std::max(1ul, stageSize / rows);
    for (unsigned long l = 0; l < depth; l += batch) {
      const unsigned long columns = std::min(batch, depth - l);
      a_.read(i0, rows, l0 + l, columns, stage_, imaginary(stage_, stageTotal()));
      for (unsigned p = 0; p < parts; ++p)
        std::fill_n(stage_ + p * stageTotal() + rows * columns, shape_.rows, Base{0});
      const stagedColumns<Base> staged{
          stage_, rows, columns, stageTotal(), aTile_ + l * shape_.rows, shape_.rows * depth, aSize()};
      place(&staged);
    }
  }

  void addTile(unsigned long i, unsigned long rows, unsigned long columns, unsigned long depth) {
    const tileProduct<Base> tile{aTile_,
                                 isOnePanel() ? rows : shape_.rows,
                                 shape_.rows * depth,
                                 aSize(),
                                 bTile_,
                                 depth,
                                 bSize(),
                                 cTile_ + i,
                                 cStride(),
                                 cSize(),
                                 rows,
                                 columns,
                                 depth,
                                 isOneChain};
    leveled<tilePass<Base, isComplex>, tileProduct<Base> const*>::chosen()(&tile);
  }

  void finish(unsigned long i0, unsigned long rows, unsigned long j0, unsigned long columns) {
    if (store(i0, rows, j0, columns, 0)) {
      for (unsigned long i = 0; i < rows; i += tileSize) {
        const unsigned long height = std::min(tileSize, rows - i);
        if (settle(i0 + i, height, j0, columns, i)) store(i0 + i, height, j0, columns, i);
      }
    }
  }

  // Columns shorter than a chunk are rounded as one.
  void pushTogether(unsigned long columns) {
    for (unsigned p = 0; p < parts; ++p) {
      for (unsigned long j = 0; j < columns; ++j) {
        std::memcpy(together_ + p * togetherSize() + j * m_, cTile_ + p * cSize() + j * cStride(),
                    chunkSize * sizeof(Base));
      }
      std::fill_n(together_ + p * togetherSize() + columns * m_, chunkSize, Base{0});
    }
  }

  // Rounds outputs and writes them. True: there are NaNs among them.
  bool store(unsigned long i0, unsigned long rows, unsigned long j0, unsigned long columns, unsigned long i) {
    finishedTile<Base> tile{cTile_ + i, cStride(), cSize(), rows, columns, out_ + parts * (i0 + j0 * m_), m_};
    if (isLow()) {
      pushTogether(columns);
      tile = {together_, 0, togetherSize(), rows * columns, 1, tile.out, 0};
    }
    bool anyNaN;
    leveled<storePass<Base, isComplex>, finishedTile<Base> const*, bool*>::chosen()(&tile, &anyNaN);
    return anyNaN;
  }

  bool settle(unsigned long i0, unsigned long rows, unsigned long j0, unsigned long columns, unsigned long i) {
    const outputsOfProduct<Base> outputs{cTile_ + i, cStride(), cSize(), rows, columns, a_, b_, begins_, i0, j0, k_};
    settlement<Base, isComplex, isOneChain> settling(outputs, specials_);
    if (!settling.open()) return false;
    const unsigned long stretches = (k_ + tileSize - 1) / tileSize;
    for (unsigned long s = 0; s < stretches; ++s) {
      const unsigned long l0 = (isOneChain ? s : stretches - 1 - s) * tileSize, depth = std::min(tileSize, k_ - l0);
      a_.read(i0, rows, l0, depth, aTile_, imaginary(aTile_, aSize()));
      b_.read(l0, depth, j0, columns, bTile_, imaginary(bTile_, bSize()));
      if (!settling.decide({aTile_, bTile_, aSize(), bSize(), rows, columns, depth})) break;
    }
    settling.close();
    return true;
  }

  operand<Base> const& a_;
  operand<Base> const& b_;
  chainBegins begins_;
  std::uint16_t* out_;
  unsigned long m_, k_, n_;
  panelShape shape_;
  scratch memory_;
  Base *aTile_, *stage_, *bTile_, *cTile_, *together_;
  float* lanes_;  // of a thin product
  specialIndices specials_;
};

}  // namespace zthalf::linalg
