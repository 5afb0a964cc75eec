#include "isolation/UserInput.h"

#include <gtk/gtk.h>

namespace kestrel::isolation {
namespace {

bool IsUserInput(GdkEventType type) {
  switch (type) {
    case GDK_BUTTON_PRESS:
    case GDK_2BUTTON_PRESS:
    case GDK_3BUTTON_PRESS:
    case GDK_BUTTON_RELEASE:
    case GDK_KEY_PRESS:
    case GDK_KEY_RELEASE:
    case GDK_SCROLL:
      return true;
    default:
      return false;
  }
}

}  // namespace

void DiscardUserInput() {
  while (GdkEvent* event = gdk_event_get()) {
    if (!IsUserInput(event->type)) gtk_main_do_event(event);
    gdk_event_free(event);
  }
}

}  // namespace kestrel::isolation
