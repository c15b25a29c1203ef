// Fontconfig keeps a few bytes for the life of the process that the leak checker takes for lost. The checker
// asks the program for what it is to pass over, so this is compiled into every program that plots.
#if defined(__SANITIZE_ADDRESS__)

extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_options();

extern "C" const char* __lsan_default_suppressions() {
  return "leak:libfontconfig\n";
}

// What was passed over is no news, and would stand among what the program prints.
extern "C" const char* __lsan_default_options() {
  return "print_suppressions=0";
}

#endif
