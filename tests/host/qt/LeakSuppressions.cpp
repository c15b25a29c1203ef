// What the leak checker is not to tell: the font library keeps its configuration until the process ends, and
// forgets its own pointers to some of it.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() {
  return "leak:libfontconfig\n";
}
