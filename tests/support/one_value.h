// One value through an array operation: alone, and in every lane and remainder of a longer array.
#pragma once

#include <gtest/gtest.h>

#include <vector>

#include "tests/support/expect_bits.h"
#include "tests/support/stage.h"

namespace zthalf::testing {

template <class In, class Out>
void expectEverywhere(void (*operation)(In*, Out*, unsigned long), In input, Out expected) {
  for (const unsigned long n : {1UL, 7UL, 8UL, 67UL}) {
    std::vector<std::byte> source(n * sizeof(In)), result(n * sizeof(Out));
    for (unsigned long i = 0; i < n; ++i) store(source.data() + i * sizeof(In), input);
    operation(arrayAt<In>(source.data()), arrayAt<Out>(result.data()), n);
    for (unsigned long i = 0; i < n; ++i) {
      Out found;
      std::memcpy(static_cast<void*>(&found), result.data() + i * sizeof(Out), sizeof found);
      ASSERT_EQ(bitsIn(found), bitsIn(expected)) << "of " << hex(input) << ", element " << i << " of " << n;
    }
  }
}

}  // namespace zthalf::testing
