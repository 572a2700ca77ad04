// The errors that this library raises at a host, each of its own type.
#pragma once

#include <exception>

#include "zthalf/host/exceptions.h"

/// An error is first handed to the host, by matrix::detail::do_legacy_vq_error, which may leave the call in its own
/// manner. If it returns, the error is thrown: it can be caught by its type below, as
/// foundation::core::except::IMsgIDException, which tells its identifier, or as std::exception.
namespace half::error {

/// half::createHalfMatrix where the host has no class "half": "half:error:HalfPrecisionNotAvailable".
struct HalfPrecisionNotAvailable {};
/// ulpFcn and useF16CforHalfFcn on an argument of a bad type: "half:error:PropInvalidDataType".
struct PropInvalidDataType {};
/// ulpFcn on two arrays of different sizes: "half:error:dimagree".
struct dimagree {};

template <class Tag>
using exceptionOf = foundation::core::except::Exception<Tag, std::exception, void>;

}  // namespace half::error
