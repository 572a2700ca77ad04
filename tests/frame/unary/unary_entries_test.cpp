// Every unary row of the entry list, by all three roads to it.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "tests/support/drawn_values.h"
#include "tests/support/loops.h"
#include "tests/support/unary_rows.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;

// Input elements of one type, as bytes: all values of a type of one or two bytes, else a systematic choice and drawn
// ones.
template <class T>
struct inputs {
  static std::vector<std::byte> all() {
    std::vector<std::byte> bytes;
    if constexpr (sizeof(T) <= 2) {
      for (std::uint32_t p = 0; p < 1u << 8 * sizeof(T); ++p) {
        if constexpr (sizeof(T) == 1) append(bytes, static_cast<std::uint8_t>(p));
        if constexpr (sizeof(T) == 2) append(bytes, static_cast<std::uint16_t>(p));
      }
    } else {
      appendSystematic(bytes, static_cast<T const*>(nullptr));
      const std::size_t chosen = bytes.size();
      bytes.resize(chosen + drawnCount * sizeof(T));
      bitSource bits(11);
      drawInto<T>(bytes.data() + chosen, drawnCount, bits);
    }
    return bytes;
  }

 private:
  static constexpr std::size_t drawnCount = 100'000;

  template <class Value>
  static void append(std::vector<std::byte>& bytes, Value value) {
    bytes.resize(bytes.size() + sizeof value);
    store(bytes.data() + bytes.size() - sizeof value, value);
  }

  // Every pattern in each of the two places, beside drawn ones.
  static void appendSystematic(std::vector<std::byte>& bytes, std::complex<half_t> const*) {
    bitSource bits(12);
    for (std::uint32_t p = 0; p <= 0xFFFF; ++p) {
      const half_t x{static_cast<std::uint16_t>(p)};
      append(bytes, std::complex<half_t>(x, drawer<half_t>::draw(bits)));
      append(bytes, std::complex<half_t>(drawer<half_t>::draw(bits), x));
    }
  }

  // Every half, the middle between it and the next one, and the numbers on either side of both.
  template <std::floating_point Float>
  static void appendSystematic(std::vector<std::byte>& bytes, Float const*) {
    for (std::uint32_t p = 0; p <= 0xFFFF; ++p) {
      const auto value = static_cast<Float>(half_scalar::impl::convertHalfToSingle(static_cast<std::uint16_t>(p)));
      const auto next = static_cast<Float>(half_scalar::impl::convertHalfToSingle(static_cast<std::uint16_t>(p ^ 1)));
      for (const Float x : {value, value + (next - value) / 2}) {
        append(bytes, x);
        append(bytes, std::nextafter(x, std::numeric_limits<Float>::infinity()));
        append(bytes, std::nextafter(x, -std::numeric_limits<Float>::infinity()));
      }
    }
  }

  // Everything around the range of half, and the powers of two of either sign with their neighbours.
  template <std::integral Integer>
  static void appendSystematic(std::vector<std::byte>& bytes, Integer const*) {
    for (long long x = -66'000; x <= 66'000; ++x) append(bytes, static_cast<Integer>(x));
    for (unsigned shift = 0; shift < 8 * sizeof(Integer); ++shift) {
      const auto power = 1ULL << shift;  // unsigned, so that the neighbours of the range's ends wrap
      for (const auto step : {-1ULL, 0ULL, 1ULL}) {
        append(bytes, static_cast<Integer>(power + step));
        append(bytes, static_cast<Integer>(step - power));
      }
    }
  }
};

template <class Row>
void checkValues(Row row) {
  using In = typename Row::input;
  using Out = typename Row::output;
  std::vector<std::byte> source = inputs<In>::all();
  const unsigned long n = source.size() / sizeof(In);
  std::vector<std::byte> expected(n * sizeof(Out)), actual(n * sizeof(Out));
  ascend<In, Out>(source.data(), expected.data(), n, row.rule);
  struct road {
    char const* name;
    typename Row::pass pass;
  };
  for (const auto [road, pass] : {road{"facade", row.facade}, {"entry", row.entry}, {"operation", row.operation}}) {
    std::fill(actual.begin(), actual.end(), std::byte{0xA5});
    pass(arrayAt<In>(source.data()), arrayAt<Out>(actual.data()), n);
    std::size_t shown = 0;
    for (unsigned long i = 0; i < n && shown < 10; ++i) {
      if (std::memcmp(&actual[i * sizeof(Out)], &expected[i * sizeof(Out)], sizeof(Out)) == 0) continue;
      ++shown;
      ADD_FAILURE() << row.name << " by its " << road << ", element " << i << " of bytes "
                    << ::testing::PrintToString(std::vector(&source[i * sizeof(In)], &source[(i + 1) * sizeof(In)]))
                    << " gives "
                    << ::testing::PrintToString(std::vector(&actual[i * sizeof(Out)], &actual[(i + 1) * sizeof(Out)]));
    }
  }
}

TEST(UnaryEntries, GiveTheResultsOfTheirScalarRules) {
  forEachUnaryRow([](auto row) {
    SCOPED_TRACE(row.name);
    checkValues(row);
  });
}

TEST(UnaryEntries, KeepToTheirArraysAtEveryCountMisalignmentAndOverlap) {
  forEachUnaryRow([](auto row) {
    using type = decltype(row);
    SCOPED_TRACE(row.name);
    checkLoop<typename type::input, typename type::output>(row.facade, row.rule);
  });
}

TEST(UnaryEntries, TakeNullPointersForAnEmptyArray) {
  forEachUnaryRow([](auto row) {
    row.facade(nullptr, nullptr, 0);
    row.entry(nullptr, nullptr, 0);
    row.operation(nullptr, nullptr, 0);
  });
}

}  // namespace
}  // namespace zthalf
