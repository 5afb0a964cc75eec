#include "Toolkit.h"

#include <gtk/gtk.h>

namespace isolation {

bool ToolkitStarts(int* argc, char*** argv) { return gtk_init_check(argc, argv) != 0; }

}  // namespace isolation
