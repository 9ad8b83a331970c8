/* Loads a plug-in, as RTLD_LOCAL, and runs it: tap_plugin_host PLUGIN. Exits with its result. */
#include <dlfcn.h>
#include <stdio.h>

int main(int argc, char** argv)
{
    void* const plugin = argc == 2 ? dlopen(argv[1], RTLD_NOW | RTLD_LOCAL) : NULL;
    int (*run)(void) = NULL;
    if (plugin != NULL)
        *(void**)&run = dlsym(plugin, "run");
    if (run == NULL) {
        fprintf(stderr, "%s\n", plugin == NULL ? dlerror() : "no run");
        return 100;
    }
    return run();
}
