#include "host/Errors.h"
#include "host/Services.h"

namespace kestrel {

IInterface* CorvaneIDEServices = nullptr;

EAbort::~EAbort() = default;

}  // namespace kestrel
