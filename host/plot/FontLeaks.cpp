// Fontconfig keeps a few bytes for the life of the process that the leak checker takes for lost. The checker
// asks the program for what it is to pass over, so this is compiled into every program that plots.
#if defined(__SANITIZE_ADDRESS__)

extern "C" const char* __lsan_default_suppressions();

extern "C" const char* __lsan_default_suppressions() {
  return "leak:libfontconfig\n";
}

#endif
