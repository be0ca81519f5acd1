#include "tests/support/fake_d2xx.h"

namespace lumaris {

D2xx::FT_STATUS FakeD2xx::handle_call(const std::string& call, FT_HANDLE handle) {
  calls_.push_back(call);
  if (const auto it = failures_.find(call); it != failures_.end()) return it->second;
  if (!plugged_) return FT_IO_ERROR;
  if (handle == 0 || handle != open_handle_) return FT_INVALID_HANDLE;
  return FT_OK;
}

void FakeD2xx::unplug() {
  plugged_ = false;
  open_handle_ = 0;
}

D2xx::FT_STATUS FakeD2xx::FT_Open(int device, FT_HANDLE* handle) {
  calls_.push_back("FT_Open(" + std::to_string(device) + ")");
  if (const auto it = failures_.find("FT_Open"); it != failures_.end()) return it->second;
  if (!plugged_ || device != 0) return FT_DEVICE_NOT_FOUND;
  if (open_handle_ != 0) return FT_DEVICE_NOT_OPENED;  // already in use
  open_handle_ = next_handle_++;
  *handle = open_handle_;
  return FT_OK;
}

D2xx::FT_STATUS FakeD2xx::FT_Close(FT_HANDLE handle) {
  const FT_STATUS status = handle_call("FT_Close", handle);
  if (status == FT_OK) open_handle_ = 0;
  return status;
}

D2xx::FT_STATUS FakeD2xx::FT_Write(FT_HANDLE handle, const std::uint8_t* data,
                                   std::uint32_t length, std::uint32_t* written) {
  const FT_STATUS status = handle_call("FT_Write(" + std::to_string(length) + ")", handle);
  // A write that fails for a named failure still records what it was given, so a
  // test sees that the driver tried.
  writes_.emplace_back(data, data + length);
  *written = status == FT_OK ? length : 0;
  return status;
}

}  // namespace lumaris
