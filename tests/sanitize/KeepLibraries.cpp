// Keeps libraries loaded to the process's end. Qt unloads its plug-ins before LeakSanitizer looks; what only a
// library's own variables pointed to would then count as lost, by a stack without names that no suppression fits.
// Linked into every program that is built for a sanitizer.

extern "C" __attribute__((visibility("default"))) int dlclose(void * /*library*/) noexcept
{
    return 0;
}
