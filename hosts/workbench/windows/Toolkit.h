// What the library below the toolkit can do and the toolkit does not offer.  Each function does nothing where that
// library is another one.
#pragma once

class wxScreenDC;

/// Under GTK the screen is a surface that keeps the first copy made of it and answers that one for ever, unless told
/// that the screen has changed.
void ForgetScreenCopy(wxScreenDC& screen);
/// GTK leaves out the pictures of menu items by default; packages have reasons for theirs.
void ShowMenuImages();
