#include "host/Errors.h"
#include "host/Services.h"

IInterface* CorvaneIDEServices = nullptr;

EAbort::~EAbort() = default;
