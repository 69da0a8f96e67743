// xwatch WINDOWS SECONDS PROGRAM [ARGUMENT...] starts a program and times when that many of its
// windows are painted: mapped, drawn to, and showing two colours at least. Prints one line,
// {"pid": N, "painted_ms": N}, as soon as that is so; the program goes on. Milliseconds count from
// just before the program's process is made; -1 when the windows did not come within that many
// seconds.
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/Xdamage.h>
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <map>

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kSmallestSide = 16;  // smaller windows are helpers that nobody sees
constexpr double kPauseMs = 2;  // between two looks at the same window, which cost the display time

// Windows may go away at any time, so a request may name one that is gone.
int IgnoreError(Display*, XErrorEvent*) {
  return 0;
}

pid_t StartProgram(char** words) {
  const pid_t pid = ::fork();
  if (pid != 0) return pid;
  ::setsid();
  const int nowhere = ::open("/dev/null", O_RDWR);
  for (int stream = 0; stream < 3; ++stream) ::dup2(nowhere, stream);
  ::execvp(words[0], words);
  ::_exit(127);
}

class Watch {
 public:
  Watch(Display* display, int wanted) : display_(display), wanted_(wanted) {
    int first_error = 0;
    XDamageQueryExtension(display_, &first_damage_event_, &first_error);
    owner_ = XInternAtom(display_, "_NET_WM_PID", False);
    // Where windows share one desktop window, they are its children.
    const Window root = DefaultRootWindow(display_);
    XSelectInput(display_, root, SubstructureNotifyMask);
    Window ignored = 0;
    Window* children = nullptr;
    unsigned count = 0;
    XQueryTree(display_, root, &ignored, &ignored, &children, &count);
    for (unsigned i = 0; i < count; ++i) {
      XSelectInput(display_, children[i], SubstructureNotifyMask);
    }
    if (children) XFree(children);
    XSync(display_, False);
  }

  double Run(char** words, double seconds, pid_t& pid) {
    start_ = Clock::now();
    pid_ = pid = StartProgram(words);
    while (Elapsed() < seconds * 1000) {
      while (XPending(display_) > 0) TakeEvent();
      LookAtWindows();
      if (PaintedCount() >= wanted_) return Elapsed();
      pollfd connection = {ConnectionNumber(display_), POLLIN, 0};
      XFlush(display_);
      ::poll(&connection, 1, static_cast<int>(kPauseMs));
    }
    return -1;
  }

 private:
  struct Seen {
    bool drawn = false;  // since the last look
    bool painted = false;
    double looked_at = -kPauseMs;
  };

  double Elapsed() const {
    return std::chrono::duration<double, std::milli>(Clock::now() - start_).count();
  }

  int PaintedCount() const {
    return static_cast<int>(
        std::ranges::count_if(windows_, [](const auto& entry) { return entry.second.painted; }));
  }

  bool OwnedByProgram(Window window) const {
    Atom type = 0;
    int format = 0;
    unsigned long count = 0, rest = 0;
    unsigned char* data = nullptr;
    XGetWindowProperty(display_, window, owner_, 0, 1, False, XA_CARDINAL, &type, &format, &count,
                       &rest, &data);
    const bool owned = data && count == 1 &&
                       *reinterpret_cast<unsigned long*>(data) == static_cast<unsigned long>(pid_);
    if (data) XFree(data);
    return owned;
  }

  void TakeEvent() {
    XEvent event;
    XNextEvent(display_, &event);
    if (event.type == MapNotify) {
      const Window window = event.xmap.window;
      if (!windows_.contains(window) && OwnedByProgram(window)) {
        windows_[window].drawn = true;
        XDamageCreate(display_, window, XDamageReportNonEmpty);
      }
    } else if (event.type == UnmapNotify) {
      windows_.erase(event.xunmap.window);
    } else if (event.type == first_damage_event_ + XDamageNotify) {
      const auto& damage = *reinterpret_cast<const XDamageNotifyEvent*>(&event);
      XDamageSubtract(display_, damage.damage, None, None);
      if (const auto found = windows_.find(damage.drawable); found != windows_.end()) {
        found->second.drawn = true;
      }
    }
  }

  void LookAtWindows() {
    for (auto& [window, seen] : windows_) {
      if (seen.painted || !seen.drawn || Elapsed() - seen.looked_at < kPauseMs) continue;
      seen.drawn = false;
      seen.painted = ShowsTwoColours(window);
      seen.looked_at = Elapsed();
    }
  }

  bool ShowsTwoColours(Window window) const {
    XWindowAttributes attributes;
    if (!XGetWindowAttributes(display_, window, &attributes)) return false;
    const int width = attributes.width, height = attributes.height;
    if (std::min(width, height) < kSmallestSide) return false;
    XImage* image = XGetImage(display_, window, 0, 0, width, height, AllPlanes, ZPixmap);
    if (!image) return false;
    const unsigned long first = XGetPixel(image, 0, 0);
    bool two = false;
    for (int y = 0; y < height && !two; ++y) {
      for (int x = 0; x < width && !two; ++x) two = XGetPixel(image, x, y) != first;
    }
    XDestroyImage(image);
    return two;
  }

  Display* display_;
  int wanted_;
  int first_damage_event_ = 0;
  Atom owner_ = 0;
  Clock::time_point start_;
  pid_t pid_ = 0;
  std::map<Window, Seen> windows_;
};

}  // namespace

int main(int count, char** words) {
  if (count < 4) {
    std::fprintf(stderr, "usage: xwatch WINDOWS SECONDS PROGRAM [ARGUMENT...]\n");
    return 2;
  }
  Display* display = XOpenDisplay(nullptr);
  if (!display) {
    std::fprintf(stderr, "xwatch: no display\n");
    return 2;
  }
  ::fcntl(ConnectionNumber(display), F_SETFD, FD_CLOEXEC);
  XSetErrorHandler(IgnoreError);
  Watch watch(display, std::atoi(words[1]));
  pid_t pid = 0;
  const double painted = watch.Run(words + 3, std::atof(words[2]), pid);
  std::printf("{\"pid\": %d, \"painted_ms\": %.1f}\n", static_cast<int>(pid), painted);
  return painted < 0 ? 1 : 0;
}
