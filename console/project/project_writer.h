#pragma once

#include <string>

#include "core/store.h"
#include "platform/clock.h"

namespace lumaris {

// The show file, section by section, as UTF-8 text with CR line ends. Each
// routine returns its section's text, empty when it has nothing to write.
std::string Project_Section(const Store& store, const CalendarDate& date);
std::string Submix_Section(const Store& store);
std::string Patch_Section(const Store& store);
std::string FaderName_Section(const Store& store);
std::string Button_Section(const Store& store);
std::string Fader_Section(const Store& store);
std::string Chase_Section(const Store& store);
std::string Screen_Section(const Store& store);
std::string Page_Section(const Store& store);

// Whole documents, root element included. The whole project writes the store's
// `Project_Version` as it stands: the caller advances it first.
std::string whole_project_document(const Store& store, const CalendarDate& date);
std::string submix_document(const Store& store);
std::string patch_document(const Store& store);
std::string sequence_document(const Store& store);

// The bytes that go to disk: Windows-1252, plus the CR LF of the final line write.
std::string file_bytes(const std::string& document);

// "dd/mm/yyyy".
std::string date_text(const CalendarDate& date);
// A step's speed or time as the file writes it after its literal "0": the
// shortest decimal form in fixed notation, never an exponent (100000 ->
// "100000"), "." as separator, no zero before the point (0.5 -> ".5").
std::string seconds_text(double seconds);

}  // namespace lumaris
