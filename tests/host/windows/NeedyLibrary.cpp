extern "C" __declspec(dllimport) int Needed();
extern "C" __declspec(dllexport) int Needy() { return Needed(); }
