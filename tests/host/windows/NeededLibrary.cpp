extern "C" __declspec(dllexport) int Needed() { return 1; }
