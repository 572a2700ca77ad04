#include "scalar/complex/called_unit.h"

namespace zthalf {

float calledUnit::sum(float x, float y) { return definedUnit::sum(x, y); }
double calledUnit::sum(double x, double y) { return definedUnit::sum(x, y); }
float calledUnit::difference(float x, float y) { return definedUnit::difference(x, y); }
double calledUnit::difference(double x, double y) { return definedUnit::difference(x, y); }
float calledUnit::product(float x, float y) { return definedUnit::product(x, y); }
double calledUnit::product(double x, double y) { return definedUnit::product(x, y); }
float calledUnit::quotient(float x, float y) { return definedUnit::quotient(x, y); }
double calledUnit::quotient(double x, double y) { return definedUnit::quotient(x, y); }

}  // namespace zthalf
