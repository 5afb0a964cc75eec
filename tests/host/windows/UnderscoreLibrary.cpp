// Exports as some 32-bit tools do it: the compiler's own underscore counts as part of the name.  Reserved names, because
// only they lead there with these tools.
extern "C" __declspec(dllexport) int __cdecl _SccOpenProject(int value) { return value; }
extern "C" __declspec(dllexport) int __stdcall _SccGet(int value) { return value; }
