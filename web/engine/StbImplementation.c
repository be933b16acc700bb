/* The stb functions the exporter calls (image reading and PNG writing).
 * The native build links Debian's libstb; the WebAssembly build compiles
 * the implementations from the same headers here. */
#define STB_IMAGE_IMPLEMENTATION
#define STB_IMAGE_WRITE_IMPLEMENTATION
#define STBI_NO_STDIO_WARNINGS
#include <stb/stb_image.h>
#include <stb/stb_image_write.h>
