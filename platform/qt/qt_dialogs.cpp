#include "platform/qt/qt_dialogs.h"

#include <QColorDialog>
#include <QDir>
#include <QStandardPaths>
#include <QFileDialog>
#include <QMessageBox>
#include <span>
#include <utility>

namespace lumaris {

namespace {

// "XML|*.xml" becomes "XML (*.xml)".
QString qt_filter(const std::string& filter) {
  const QStringList parts = QString::fromStdString(filter).split('|');
  QStringList filters;
  for (int i = 0; i + 1 < parts.size(); i += 2) {
    filters << QStringLiteral("%1 (%2)").arg(parts[i], QString(parts[i + 1]).replace(';', ' '));
  }
  return filters.join(QStringLiteral(";;"));
}

QMessageBox::Icon qt_icon(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::Exclamation: return QMessageBox::Warning;
    case MessageIcon::Question: return QMessageBox::Question;
    case MessageIcon::Information: return QMessageBox::Information;
    case MessageIcon::Critical: return QMessageBox::Critical;
    case MessageIcon::None: break;
  }
  return QMessageBox::NoIcon;
}

// A wildcard-only initial name ("*.xml") is no name at all.
QString initial_path(const std::string& name) {
  return name.find('*') != std::string::npos ? QString() : QString::fromStdString(name);
}

}  // namespace

MessageResult QtDialogs::message(const MessageBoxSpec& request) {
  if (request.buttons == MessageButtons::Ok) {
    // A notice has one answer: show it and go on; it deletes itself when closed.
    auto* notice = new QMessageBox(qt_icon(request.icon), QString::fromStdString(request.title),
                                   QString::fromStdString(request.text), QMessageBox::Ok, parent());
    notice->setAttribute(Qt::WA_DeleteOnClose);
    notice->open();
    return MessageResult::Ok;
  }
  QMessageBox box(qt_icon(request.icon), QString::fromStdString(request.title),
                  QString::fromStdString(request.text), QMessageBox::NoButton, parent());
  const std::pair<QMessageBox::StandardButton, MessageResult> ok_cancel[] = {
      {QMessageBox::Ok, MessageResult::Ok}, {QMessageBox::Cancel, MessageResult::Cancel}};
  const std::pair<QMessageBox::StandardButton, MessageResult> save_discard_cancel[] = {
      {QMessageBox::Save, MessageResult::Save},
      {QMessageBox::Discard, MessageResult::Discard},
      {QMessageBox::Cancel, MessageResult::Cancel}};
  std::span<const std::pair<QMessageBox::StandardButton, MessageResult>> buttons = ok_cancel;
  if (request.buttons == MessageButtons::SaveDiscardCancel) buttons = save_discard_cancel;
  for (const auto& [button, result] : buttons) {
    box.addButton(button);
    if (result == request.default_button) box.setDefaultButton(button);
  }
  // Escape and the window's close button answer Cancel.
  box.setEscapeButton(QMessageBox::Cancel);
  const int chosen = box.exec();
  for (const auto& [button, result] : buttons) {
    if (chosen == button) return result;
  }
  return MessageResult::Cancel;
}

std::string QtDialogs::open_file(const FileDialogSpec& request) {
  return QFileDialog::getOpenFileName(parent(), QString::fromStdString(request.title),
                                      initial_path(request.initial_name), qt_filter(request.filter))
      .toStdString();
}

// A name without a folder is proposed in the user's documents folder.
std::string QtDialogs::save_file(const FileDialogSpec& request) {
  QString initial = initial_path(request.initial_name);
  if (!initial.isEmpty() && !initial.contains(QLatin1Char('/'))) {
    initial = QDir(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)).filePath(initial);
  }
  return QFileDialog::getSaveFileName(parent(), QString::fromStdString(request.title), initial,
                                      qt_filter(request.filter))
      .toStdString();
}

std::optional<Rgb> QtDialogs::choose_colour(const std::string& title, std::optional<Rgb> initial) {
  const QColor start = initial ? QColor(initial->r, initial->g, initial->b) : QColor(Qt::white);
  const QColor chosen = QColorDialog::getColor(start, parent(), QString::fromStdString(title));
  if (!chosen.isValid()) return std::nullopt;
  return Rgb{static_cast<std::uint8_t>(chosen.red()), static_cast<std::uint8_t>(chosen.green()),
             static_cast<std::uint8_t>(chosen.blue())};
}

}  // namespace lumaris
