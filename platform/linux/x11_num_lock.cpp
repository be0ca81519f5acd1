#include "platform/linux/x11_num_lock.h"

#include "platform/linux/shared_library.h"

namespace lumaris {

namespace {

// The few Xlib and XKB calls used, as libX11 exports them.
constexpr unsigned int kUseCoreKeyboard = 0x0100;  // XkbUseCoreKbd
constexpr unsigned long kNumLockKeysym = 0xff7f;   // XK_Num_Lock

}  // namespace

struct X11NumLock::Api {
  using OpenDisplay = void* (*)(const char*);
  using CloseDisplay = int (*)(void*);
  using KeysymToModifiers = unsigned int (*)(void*, unsigned long);
  using LockModifiers = int (*)(void*, unsigned int, unsigned int, unsigned int);
  using InternAtom = unsigned long (*)(void*, const char*, int);
  using GetNamedIndicator = int (*)(void*, unsigned long, int*, int*, void*, int*);
  using Flush = int (*)(void*);
  OpenDisplay open = nullptr;
  CloseDisplay close = nullptr;
  KeysymToModifiers modifiers = nullptr;
  LockModifiers lock = nullptr;
  InternAtom atom = nullptr;
  GetNamedIndicator indicator = nullptr;
  Flush flush = nullptr;

  bool complete() const { return open && close && modifiers && lock && atom && indicator && flush; }
};

X11NumLock::X11NumLock(const std::string& display)
    : library_(std::make_unique<SharedLibrary>()), api_(std::make_unique<Api>()) {
  if (!library_->load({"libX11.so.6", "libX11.so"})) return;
  Api& x = *api_;
  x.open = library_->function<Api::OpenDisplay>("XOpenDisplay");
  x.close = library_->function<Api::CloseDisplay>("XCloseDisplay");
  x.modifiers = library_->function<Api::KeysymToModifiers>("XkbKeysymToModifiers");
  x.lock = library_->function<Api::LockModifiers>("XkbLockModifiers");
  x.atom = library_->function<Api::InternAtom>("XInternAtom");
  x.indicator = library_->function<Api::GetNamedIndicator>("XkbGetNamedIndicator");
  x.flush = library_->function<Api::Flush>("XFlush");
  if (!x.complete()) return;
  display_ = x.open(display.empty() ? nullptr : display.c_str());
  if (display_ == nullptr) return;
  mask_ = x.modifiers(display_, kNumLockKeysym);
  if (mask_ == 0) {  // no key of this keyboard is Num Lock
    x.close(display_);
    display_ = nullptr;
  }
}

X11NumLock::~X11NumLock() {
  if (display_ != nullptr) api_->close(display_);
}

std::optional<bool> X11NumLock::state() const {
  if (display_ == nullptr) return std::nullopt;
  const unsigned long name = api_->atom(display_, "Num Lock", 0);
  int on = 0;
  if (name == 0 || !api_->indicator(display_, name, nullptr, &on, nullptr, nullptr)) {
    return std::nullopt;
  }
  return on != 0;
}

void X11NumLock::set(bool on) {
  if (display_ == nullptr) return;
  api_->lock(display_, kUseCoreKeyboard, mask_, on ? mask_ : 0);
  api_->flush(display_);
}

}  // namespace lumaris
