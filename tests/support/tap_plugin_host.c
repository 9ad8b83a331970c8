/* Loads a plug-in, as RTLD_LOCAL, and runs it: tap_plugin_host PLUGIN. */
#include <dlfcn.h>

int main(int argc, char** argv)
{
    int (*run)(void);
    *(void**)&run = dlsym(dlopen(argv[argc - 1], RTLD_NOW | RTLD_LOCAL), "run");
    return run();
}
