#include "platform/qt/qt_settings.h"

namespace lumaris {

QtSettings::QtSettings()
    : settings_(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("Lumaris"),
                QStringLiteral("Lumaris")) {}

std::optional<std::string> QtSettings::read(const std::string& key) const {
  const QString name = QString::fromStdString(key);
  if (!settings_.contains(name)) return std::nullopt;
  return settings_.value(name).toString().toStdString();
}

void QtSettings::write(const std::string& key, const std::string& value) {
  settings_.setValue(QString::fromStdString(key), QString::fromStdString(value));
  settings_.sync();
}

void QtSettings::remove(const std::string& key) {
  settings_.remove(QString::fromStdString(key));
  settings_.sync();
}

}  // namespace lumaris
