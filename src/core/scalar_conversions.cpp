#include "core/float_conversion.h"
#include "core/integer_conversion.h"
#include "zthalf/half_scalar.h"

namespace half_scalar::impl {

unsigned short convertSingleToHalf(float value) { return zthalf::narrow(value); }
unsigned short convertDoubleToHalf(double value) { return zthalf::narrow(value); }
unsigned short convertUint8ToHalf(unsigned char value) { return zthalf::integerToHalf(value); }
unsigned short convertInt8ToHalf(signed char value) { return zthalf::integerToHalf(value); }
unsigned short convertUint16ToHalf(unsigned short value) { return zthalf::integerToHalf(value); }
unsigned short convertInt16ToHalf(short value) { return zthalf::integerToHalf(value); }
unsigned short convertUint32ToHalf(unsigned int value) { return zthalf::integerToHalf(value); }
unsigned short convertInt32ToHalf(int value) { return zthalf::integerToHalf(value); }
unsigned short convertUint64ToHalf(unsigned long long value) { return zthalf::integerToHalf(value); }
unsigned short convertInt64ToHalf(long long value) { return zthalf::integerToHalf(value); }
unsigned short convertLogicalToHalf(bool value) { return zthalf::logicalToHalf(value); }

float convertHalfToSingle(unsigned short pattern) { return zthalf::widen<float>(pattern); }
double convertHalfToDouble(unsigned short pattern) { return zthalf::widen<double>(pattern); }
unsigned char convertHalfToUint8(unsigned short pattern) { return zthalf::halfToInteger<unsigned char>(pattern); }
signed char convertHalfToInt8(unsigned short pattern) { return zthalf::halfToInteger<signed char>(pattern); }
unsigned short convertHalfToUint16(unsigned short pattern) { return zthalf::halfToInteger<unsigned short>(pattern); }
short convertHalfToInt16(unsigned short pattern) { return zthalf::halfToInteger<short>(pattern); }
unsigned int convertHalfToUint32(unsigned short pattern) { return zthalf::halfToInteger<unsigned int>(pattern); }
int convertHalfToInt32(unsigned short pattern) { return zthalf::halfToInteger<int>(pattern); }
unsigned long long convertHalfToUint64(unsigned short pattern) {
  return zthalf::halfToInteger<unsigned long long>(pattern);
}
long long convertHalfToInt64(unsigned short pattern) { return zthalf::halfToInteger<long long>(pattern); }
bool convertHalfToLogical(unsigned short pattern) { return zthalf::halfToLogical(pattern); }

}  // namespace half_scalar::impl
