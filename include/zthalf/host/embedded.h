// For programs that run without a host of their own: the arrays of libzthalf-host, made, shared, looked at and freed,
// and what a host decides about errors and warnings. A program with a host of its own does not need this header.
#pragma once

#include <initializer_list>
#include <memory>
#include <stdexcept>
#include <vector>

#include "zthalf/host/exceptions.h"
#include "zthalf/host/vq_array.h"

namespace zthalf::host {

/// Arrays are counted: one that is made has one holder, its maker. An array is freed, with its data, when its last
/// holder has let go of it and no other array has it as a part. Two threads must not use one array at the same time
/// unless both only read it; different arrays do not disturb one another, shared data included.

/// One more holder, and one less; null is let go of, too.
ZTHALF_API vqArray_tag* retain(vqArray_tag* array);
ZTHALF_API void release(vqArray_tag* array);

struct releaser {
  void operator()(vqArray_tag* held) const { release(held); }
};
/// A holder that lets go by itself. `array(ptr)` takes over the hold that the maker of ptr had.
using array = std::unique_ptr<vqArray_tag, releaser>;

/// A new array of zeros, of any class but vqObjectClass and vqHalfClass; halves are made by half::createHalfArray. The
/// parts of a complex element lie side by side in the one buffer, whatever the class. A name that is not known, or a
/// class that is none, is a std::invalid_argument; memory that is not there a std::bad_alloc.
ZTHALF_API array newArray(std::vector<unsigned long> const& dims, vqClassID id, vqComplexity complexity = vqReal);
/// A row of characters.
ZTHALF_API array newText(char const* text);
/// An array with the same data, of which there is one copy until one of the two is unshared. Both get
/// vq_flags::maybeShared; a half array is an object with an array inside, and both have it.
ZTHALF_API array sharedCopy(vqArray_tag const* array);

/// The elements of an array, or of the array inside an object.
ZTHALF_API void* dataOf(vqArray_tag const* array);
template <class T>
T* elementsOf(vqArray_tag const* array) {
  return static_cast<T*>(dataOf(array));
}

/// Makes the array say that it is sparse. The data stays full, so that nothing that reads it reads amiss.
ZTHALF_API void markSparse(vqArray_tag* array);
/// Sets or clears vq_flags::dataHeld.
ZTHALF_API void holdData(vqArray_tag* array, bool held);
/// Puts the dimensions away until somebody completes them: vq_flags::opaqueDimensions.
ZTHALF_API void deferDimensions(vqArray_tag* array);
/// Makes a numeric array one of a class with this name that is derived from its own. Its class word is above 17 then,
/// and its class what it was.
ZTHALF_API void deriveClass(vqArray_tag* array, char const* name);

/// Adds a class of objects around arrays of a numeric class, or makes a class available again or unavailable. "half" is
/// there and available from the beginning.
ZTHALF_API void addClass(char const* name, vqClassID elements);
ZTHALF_API void setClassAvailable(char const* name, bool available);

/// While one exists, what this thread makes belongs to it as well: arrays that nobody has let go of and buffers that no
/// array has got are freed with it. So a call that fails leaves nothing behind. What is to stay, keep takes out of it;
/// what was made inside must be let go of on the same thread until then. They may be nested.
class temporaries {
 public:
  ZTHALF_API temporaries();
  ZTHALF_API ~temporaries();
  temporaries(temporaries const&) = delete;
  temporaries& operator=(temporaries const&) = delete;

  /// Gives back a holder of an array that was made since.
  ZTHALF_API array keep(vqArray_tag* array);

 private:
  void* list_;
  temporaries* outer_;
};

/// Calls a function of the entry shape for one output, as a host does: whatever happens, nothing else is left behind.
using entry = void(int nlhs, vqArray_tag** plhs, int nrhs, vqArray_tag const** prhs);
inline array call(entry* function, std::initializer_list<vqArray_tag const*> inputs) {
  temporaries made;
  std::vector<vqArray_tag const*> prhs(inputs);
  vqArray_tag* output = nullptr;
  function(1, &output, static_cast<int>(prhs.size()), prhs.data());
  return output != nullptr ? made.keep(output) : array();
}

/// How many arrays and data buffers there are, of all threads.
ZTHALF_API long liveArrays();
ZTHALF_API long liveBuffers();

/// Gets every error before it is thrown, and may throw something else or not return at all. The function that was set
/// before comes back; null, which is how it begins, lets all errors be thrown as they are.
using errorHandler = void (*)(foundation::core::except::IUserException const&);
ZTHALF_API errorHandler setErrorHandler(errorHandler handler);

/// What error_maxlhs, error_maxrhs and error_minrhs throw.
enum class argumentCount { tooManyOutputs, tooManyInputs, tooFewInputs };
class ZTHALF_API argumentCountError : public std::invalid_argument {
 public:
  explicit argumentCountError(argumentCount what);
  ~argumentCountError() override;
  argumentCount what_is_wrong() const noexcept { return wrong_; }

 private:
  argumentCount wrong_;
};

/// Gets every warning with its text; any thread may bring one, and several at once. The one that was set before comes
/// back. Null, which is how it begins, counts them: each message is printed once to standard error, with the number of
/// times that it came, when the process ends or by printWarnings.
using warningSink = void (*)(resource_core::BaseMsgID const& id, char const* text);
ZTHALF_API warningSink setWarningSink(warningSink sink);
/// Prints what was counted, and begins to count anew.
ZTHALF_API void printWarnings();

}  // namespace zthalf::host
