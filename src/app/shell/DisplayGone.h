// A session may end before its programs do, and take the display along. The toolkit's part for X11
// then ends the process by exit, its part for Wayland by _exit, after which the next start would
// see a crash, and frames of patients would stay behind until then.
#pragma once

// From now on both end with code 1 and without a trace; here by quick_exit, since objects that go
// would talk to the display again. Main thread, before the application object is made.
void EndInOrderWithoutDisplay();
