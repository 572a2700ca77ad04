#include "scalar/functors/remainder_functors.h"
#include "zthalf/mod_rem.h"

namespace half::impl::emulated {

unsigned short mod(unsigned short x, unsigned short y) { return zthalf::modOfHalves(x, y); }
unsigned short rem(unsigned short x, unsigned short y) { return zthalf::remOfHalves(x, y); }

unsigned short modFtor::operator()(unsigned short x, unsigned short y) const { return modInLoopFtor{}(x, y); }
unsigned short modFtor::operator()(unsigned short x, float y) const { return modInLoopFtor{}(x, y); }
unsigned short modFtor::operator()(float x, unsigned short y) const { return modInLoopFtor{}(x, y); }
unsigned short modFtor::operator()(unsigned short x, double y) const { return modInLoopFtor{}(x, y); }
unsigned short modFtor::operator()(double x, unsigned short y) const { return modInLoopFtor{}(x, y); }

unsigned short remFtor::operator()(unsigned short x, unsigned short y) const { return remInLoopFtor{}(x, y); }
unsigned short remFtor::operator()(unsigned short x, float y) const { return remInLoopFtor{}(x, y); }
unsigned short remFtor::operator()(float x, unsigned short y) const { return remInLoopFtor{}(x, y); }
unsigned short remFtor::operator()(unsigned short x, double y) const { return remInLoopFtor{}(x, y); }
unsigned short remFtor::operator()(double x, unsigned short y) const { return remInLoopFtor{}(x, y); }

}  // namespace half::impl::emulated
