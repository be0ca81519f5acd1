#include "platform/linux/libftdi_d2xx.h"

#include <utility>

namespace lumaris {

namespace {

constexpr int kBaseClock = 3'000'000;  // the divisor counts in steps of this clock
constexpr int kBreakOff = 0;
constexpr int kBreakOn = 1;

template <typename Function>
bool bind(const SharedLibrary& library, const char* name, Function& target) {
  target = library.function<Function>(name);
  return target != nullptr;
}

}  // namespace

const std::vector<std::string> LibftdiD2xx::kLibraryNames = {"libftdi1.so.2", "libftdi1.so"};

LibftdiD2xx::LibftdiD2xx(std::vector<std::string> library_names)
    : names_(std::move(library_names)) {}

LibftdiD2xx::~LibftdiD2xx() {
  if (context_ == nullptr) return;
  if (open_handle_ != 0) api_.usb_close(context_);
  api_.free_context(context_);
}

bool LibftdiD2xx::load() {
  if (tried_) return usable_;
  tried_ = true;
  if (!library_.load(names_)) return false;
  Api api;
  bool complete = bind(library_, "ftdi_new", api.new_context) &&
                  bind(library_, "ftdi_free", api.free_context) &&
                  bind(library_, "ftdi_usb_open", api.usb_open) &&
                  bind(library_, "ftdi_usb_close", api.usb_close) &&
                  bind(library_, "ftdi_usb_reset", api.usb_reset) &&
                  bind(library_, "ftdi_set_baudrate", api.set_baudrate) &&
                  bind(library_, "ftdi_set_line_property2", api.set_line_property2) &&
                  bind(library_, "ftdi_setflowctrl", api.setflowctrl) &&
                  bind(library_, "ftdi_setrts", api.setrts) &&
                  bind(library_, "ftdi_write_data", api.write_data);
  // libftdi 1.5 renamed the purges after the termios calls; older ones have only these.
  complete = complete && (bind(library_, "ftdi_tcoflush", api.flush_tx) ||
                          bind(library_, "ftdi_usb_purge_tx_buffer", api.flush_tx));
  complete = complete && (bind(library_, "ftdi_tciflush", api.flush_rx) ||
                          bind(library_, "ftdi_usb_purge_rx_buffer", api.flush_rx));
  if (!complete) return false;
  api_ = api;
  // One USB context for the life of the program: re-opening a lost device every
  // tick must not start and stop libusb each time.
  context_ = api_.new_context();
  usable_ = context_ != nullptr;
  return usable_;
}

bool LibftdiD2xx::driver_present() { return load(); }

D2xx::FT_STATUS LibftdiD2xx::FT_Open(int device, FT_HANDLE* handle) {
  if (!load()) return FT_DEVICE_NOT_FOUND;
  if (device != 0) return FT_DEVICE_NOT_FOUND;  // one interface at a time: the first
  if (open_handle_ != 0) {
    api_.usb_close(context_);
    open_handle_ = 0;
  }
  for (const std::uint16_t product : kProducts) {
    if (api_.usb_open(context_, kVendor, product) == 0) {
      open_handle_ = next_handle_++;
      if (next_handle_ == 0) next_handle_ = 1;
      *handle = open_handle_;
      return FT_OK;
    }
  }
  return FT_DEVICE_NOT_FOUND;
}

D2xx::FT_STATUS LibftdiD2xx::FT_Close(FT_HANDLE handle) {
  if (!is_open(handle)) return FT_INVALID_HANDLE;
  open_handle_ = 0;
  return api_.usb_close(context_) == 0 ? FT_OK : FT_IO_ERROR;
}

D2xx::FT_STATUS LibftdiD2xx::result(FT_HANDLE handle, int (*call)(ftdi_context*)) {
  if (!is_open(handle)) return FT_INVALID_HANDLE;
  return call(context_) == 0 ? FT_OK : FT_IO_ERROR;
}

D2xx::FT_STATUS LibftdiD2xx::FT_ResetDevice(FT_HANDLE handle) {
  return result(handle, api_.usb_reset);
}

D2xx::FT_STATUS LibftdiD2xx::FT_SetDivisor(FT_HANDLE handle, std::uint16_t divisor) {
  if (!is_open(handle)) return FT_INVALID_HANDLE;
  const int baud = kBaseClock / (divisor == 0 ? 1 : divisor);
  return api_.set_baudrate(context_, baud) == 0 ? FT_OK : FT_IO_ERROR;
}

D2xx::FT_STATUS LibftdiD2xx::FT_SetDataCharacteristics(FT_HANDLE handle, std::uint8_t word_length,
                                                       std::uint8_t stop_bits,
                                                       std::uint8_t parity) {
  if (!is_open(handle)) return FT_INVALID_HANDLE;
  // D2XX and libftdi number word length, stop bits and parity alike.
  if (api_.set_line_property2(context_, word_length, stop_bits, parity, kBreakOff) != 0) {
    return FT_IO_ERROR;
  }
  bits_ = word_length;
  stop_bits_ = stop_bits;
  parity_ = parity;
  return FT_OK;
}

D2xx::FT_STATUS LibftdiD2xx::FT_SetFlowControl(FT_HANDLE handle, std::uint16_t flow, std::uint8_t,
                                               std::uint8_t) {
  if (!is_open(handle)) return FT_INVALID_HANDLE;
  // The handshake bits of D2XX are libftdi's SIO_*_HS values.
  return api_.setflowctrl(context_, flow) == 0 ? FT_OK : FT_IO_ERROR;
}

D2xx::FT_STATUS LibftdiD2xx::FT_ClrRts(FT_HANDLE handle) {
  if (!is_open(handle)) return FT_INVALID_HANDLE;
  return api_.setrts(context_, 0) == 0 ? FT_OK : FT_IO_ERROR;
}

D2xx::FT_STATUS LibftdiD2xx::FT_Purge(FT_HANDLE handle, std::uint32_t mask) {
  if (!is_open(handle)) return FT_INVALID_HANDLE;
  if ((mask & FT_PURGE_TX) != 0 && api_.flush_tx(context_) != 0) return FT_IO_ERROR;
  if ((mask & FT_PURGE_RX) != 0 && api_.flush_rx(context_) != 0) return FT_IO_ERROR;
  return FT_OK;
}

D2xx::FT_STATUS LibftdiD2xx::set_break(FT_HANDLE handle, bool on) {
  if (!is_open(handle)) return FT_INVALID_HANDLE;
  const int status =
      api_.set_line_property2(context_, bits_, stop_bits_, parity_, on ? kBreakOn : kBreakOff);
  return status == 0 ? FT_OK : FT_IO_ERROR;
}

D2xx::FT_STATUS LibftdiD2xx::FT_SetBreakOn(FT_HANDLE handle) { return set_break(handle, true); }

D2xx::FT_STATUS LibftdiD2xx::FT_SetBreakOff(FT_HANDLE handle) { return set_break(handle, false); }

D2xx::FT_STATUS LibftdiD2xx::FT_Write(FT_HANDLE handle, const std::uint8_t* data,
                                      std::uint32_t length, std::uint32_t* written) {
  *written = 0;
  if (!is_open(handle)) return FT_INVALID_HANDLE;
  const int count = api_.write_data(context_, data, static_cast<int>(length));
  if (count < 0) return FT_IO_ERROR;
  *written = static_cast<std::uint32_t>(count);
  return FT_OK;
}

}  // namespace lumaris
