#include <cstdint>

extern "C" std::int32_t SccInitialize() { return 0; }
