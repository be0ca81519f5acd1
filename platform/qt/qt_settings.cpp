#include "platform/qt/qt_settings.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QStandardPaths>
#include <cerrno>
#include <cstring>

namespace lumaris {

namespace {

QString settings_path() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
         QStringLiteral("/Lumaris/Lumaris.conf");
}

// Why the file at `path` cannot be read before Qt opens it (opening a FIFO
// would wait for a writer); empty when it can, or when it is not there yet.
std::string why_unreadable(const std::string& path) {
  struct stat status{};
  if (::stat(path.c_str(), &status) != 0) return errno == ENOENT ? "" : std::strerror(errno);
  if (!S_ISREG(status.st_mode)) return "it is not a regular file";
  if (::access(path.c_str(), R_OK) != 0) return "no permission to read it";
  return {};
}

std::string why_qt_refused(QSettings::Status status) {
  switch (status) {
    case QSettings::FormatError: return "it is not in the settings format";
    case QSettings::AccessError: return "it could not be read";
    case QSettings::NoError: break;
  }
  return {};
}

}  // namespace

QtSettings::QtSettings() {
  const QString path = settings_path();
  std::string why = why_unreadable(path.toStdString());
  if (why.empty()) {
    settings_ = std::make_unique<QSettings>(path, QSettings::NativeFormat);
    why = why_qt_refused(settings_->status());
  }
  if (!why.empty()) {
    // Destroyed unchanged, it writes nothing.
    settings_.reset();
    problem_ = "the settings file " + path.toStdString() + " cannot be read (" + why +
               "); this run uses the default settings and leaves the file as it is";
  }
}

std::optional<std::string> QtSettings::read(const std::string& key) const {
  if (!settings_) {
    const auto found = in_memory_.find(key);
    if (found == in_memory_.end()) return std::nullopt;
    return found->second;
  }
  const QString name = QString::fromStdString(key);
  if (!settings_->contains(name)) return std::nullopt;
  return settings_->value(name).toString().toStdString();
}

void QtSettings::write(const std::string& key, const std::string& value) {
  if (!settings_) {
    in_memory_[key] = value;
    return;
  }
  settings_->setValue(QString::fromStdString(key), QString::fromStdString(value));
  settings_->sync();
}

void QtSettings::remove(const std::string& key) {
  if (!settings_) {
    in_memory_.erase(key);
    return;
  }
  settings_->remove(QString::fromStdString(key));
  settings_->sync();
}

}  // namespace lumaris
