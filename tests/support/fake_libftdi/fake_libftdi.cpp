// A stand-in for libftdi1 that the real wrapper loads in its place: it records
// every call with the values the wrapper passed, as text, and answers 0 (or the
// failure a test asks for). The test reads the record through fake_ftdi_calls().
#include <cstdio>
#include <string>

struct ftdi_context {
  int unused;
};

namespace {

ftdi_context the_context{};
std::string record;
std::string failing;  // the one function that answers -1

int answer(const char* name, const std::string& arguments = {}) {
  record.append(name).append(arguments).append("\n");
  return failing == name ? -1 : 0;
}

std::string numbers(std::initializer_list<long> values) {
  std::string text = "(";
  for (const long value : values) {
    if (text.size() > 1) text += ", ";
    text += std::to_string(value);
  }
  return text + ")";
}

}  // namespace

extern "C" {

ftdi_context* ftdi_new() {
  answer("ftdi_new");
  return &the_context;
}
void ftdi_free(ftdi_context*) { answer("ftdi_free"); }
int ftdi_usb_open(ftdi_context*, int vendor, int product) {
  char ids[32];
  std::snprintf(ids, sizeof ids, "(0x%04x, 0x%04x)", static_cast<unsigned>(vendor),
                static_cast<unsigned>(product));
  return answer("ftdi_usb_open", ids);
}
int ftdi_usb_close(ftdi_context*) { return answer("ftdi_usb_close"); }
int ftdi_usb_reset(ftdi_context*) { return answer("ftdi_usb_reset"); }
int ftdi_set_baudrate(ftdi_context*, int baudrate) {
  return answer("ftdi_set_baudrate", numbers({baudrate}));
}
int ftdi_set_line_property2(ftdi_context*, int bits, int stop_bits, int parity, int break_type) {
  return answer("ftdi_set_line_property2", numbers({bits, stop_bits, parity, break_type}));
}
int ftdi_setflowctrl(ftdi_context*, int flow) { return answer("ftdi_setflowctrl", numbers({flow})); }
int ftdi_setrts(ftdi_context*, int state) { return answer("ftdi_setrts", numbers({state})); }
int ftdi_set_latency_timer(ftdi_context*, unsigned char latency) {
  return answer("ftdi_set_latency_timer", numbers({latency}));
}
int ftdi_tcoflush(ftdi_context*) { return answer("ftdi_tcoflush"); }
int ftdi_tciflush(ftdi_context*) { return answer("ftdi_tciflush"); }
int ftdi_write_data(ftdi_context*, const unsigned char* data, int size) {
  // The length and the first byte, enough to tell a start code from a frame.
  const int status = answer("ftdi_write_data", numbers({size, size > 0 ? data[0] : -1}));
  return status < 0 ? status : size;
}

// The test's side.
const char* fake_ftdi_calls() { return record.c_str(); }
void fake_ftdi_clear() { record.clear(); }
void fake_ftdi_fail(const char* name) { failing = name; }

}  // extern "C"
