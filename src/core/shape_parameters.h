// The shapes of the operands and of the output, as the functions with implicit expansion take them: count, number of
// dimensions and sizes of each. Named once here, and handed on as they came.
#pragma once

#define ZTHALF_SHAPE(x) unsigned long n##x, unsigned long ndims##x, unsigned long const *dims##x
#define ZTHALF_SHAPE_NAMES(x) n##x, ndims##x, dims##x

#define ZTHALF_THREE_SHAPES ZTHALF_SHAPE(A), ZTHALF_SHAPE(B), ZTHALF_SHAPE(C)
#define ZTHALF_THREE_SHAPE_NAMES ZTHALF_SHAPE_NAMES(A), ZTHALF_SHAPE_NAMES(B), ZTHALF_SHAPE_NAMES(C)
#define ZTHALF_FOUR_SHAPES ZTHALF_THREE_SHAPES, ZTHALF_SHAPE(D)
#define ZTHALF_FOUR_SHAPE_NAMES ZTHALF_THREE_SHAPE_NAMES, ZTHALF_SHAPE_NAMES(D)
