// Eigen's half, where CMake found Eigen.
#include "bench/peers/peers.h"

#if defined(ZTHALF_PEER_EIGEN)
#include <Eigen/Core>
#endif

namespace bench {

#if defined(ZTHALF_PEER_EIGEN)
namespace {

template <class T, class Stored>
auto mapped(Stored* data, unsigned long n) {
  return Eigen::Map<Eigen::Array<T, Eigen::Dynamic, 1>>(reinterpret_cast<T*>(data), static_cast<Eigen::Index>(n));
}

template <class From, class To, class FromStored, class ToStored>
void convert(FromStored* src, ToStored* dst, unsigned long n) {
  mapped<To>(dst, n) = mapped<From>(src, n).template cast<To>();
}

void floor(half_t* src, half_t* dst, unsigned long n) {
  mapped<Eigen::half>(dst, n) = mapped<Eigen::half>(src, n).floor();
}

void plus(half_t* a, half_t* b, half_t* c, unsigned long n) {
  mapped<Eigen::half>(c, n) = mapped<Eigen::half>(a, n) + mapped<Eigen::half>(b, n);
}

using matrix = Eigen::Map<Eigen::Matrix<Eigen::half, Eigen::Dynamic, Eigen::Dynamic>>;

void matrixTimes(half_t* a, half_t* b, half_t* c, unsigned long n) {
  const auto order = static_cast<Eigen::Index>(n);
  const auto mappedMatrix = [&](half_t* x) { return matrix(reinterpret_cast<Eigen::half*>(x), order, order); };
  mappedMatrix(c).noalias() = mappedMatrix(a) * mappedMatrix(b);
}

}  // namespace
#endif

ZTHALF_PEER_EXPORT peerPasses ZTHALF_PEER(eigen_)() {
  peerPasses passes{};
#if defined(ZTHALF_PEER_EIGEN)
  passes.name = "Eigen-" ZTHALF_PEER_TEXT(ZTHALF_PEER_SET);
  passes.halfToSingle = convert<Eigen::half, float>;
  passes.singleToHalf = convert<float, Eigen::half>;
  passes.halfToDouble = convert<Eigen::half, double>;
  passes.doubleToHalf = convert<double, Eigen::half>;
  passes.int32ToHalf = convert<int, Eigen::half>;
  passes.halfToInt32 = convert<Eigen::half, int>;
  passes.floor = floor;
  passes.plus = plus;
  passes.matrixTimes = matrixTimes;
#endif
  return passes;
}

}  // namespace bench
