// Has AddressSanitizer walk the stack of each allocation by its tables, not by frame pointers: the SIP and sound
// libraries keep none, and a suppression that names one of them would not fit. That is slow, so no deeper than a leak
// of theirs is. Linked into the program that links these libraries.

extern "C" __attribute__((visibility("default"))) const char *__asan_default_options()
{
    return "fast_unwind_on_malloc=0:malloc_context_size=10";
}
