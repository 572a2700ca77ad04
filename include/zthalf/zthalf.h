// Everything the library offers.
#pragma once

#include "zthalf/codetext.h"
#include "zthalf/float_type.h"
#include "zthalf/half_extrema.h"
#include "zthalf/half_ops.h"
#include "zthalf/half_ptr.h"
#include "zthalf/half_reductions.h"
#include "zthalf/half_scalar.h"
#include "zthalf/half_t.h"
#include "zthalf/half_vector.h"
#include "zthalf/host.h"
#include "zthalf/host_errors.h"
#include "zthalf/host_functions.h"
#include "zthalf/lifecycle.h"
#include "zthalf/mod_rem.h"
#include "zthalf/version.h"
