#include "frame/ui/picture_files.h"

#include <QBuffer>
#include <QPainter>
#include <QSvgGenerator>

#include "frame/datei_dialog.h"
#include "frame/file_message.h"
#include "frame/safe_save.h"
#include "frame/ui/image_surface.h"

namespace korvin {
namespace {

constexpr std::int16_t TextBildPng = 7353;
constexpr std::int16_t TextBildSvg = 7354;
constexpr std::int16_t TextBildSpeichern = 7355;
constexpr std::int16_t TextNichtGespeichert = 1102;
constexpr const char* operation = "BildSpeichern";

void report(const PictureDesk& desk, const Meldung& message) {
  desk.messages.beep();
  desk.messages.show(message, MessageIcon::warning, MessageButtons::ok);
}

std::string askForName(const PictureDesk& desk, PictureFormat format) {
  const bool png = format == PictureFormat::png;
  const std::string extension = png ? ".png" : ".svg";
  const std::string pattern = "*" + extension;
  const std::string words = desk.dictionary.DicText(png ? TextBildPng : TextBildSvg);
  return dateiErfragen(desk.fileDialog, desk.folder ? desk.folder() : std::string(),
                       words + " (" + pattern + ")|" + pattern, desk.dictionary.DicText(TextBildSpeichern),
                       false, (desk.name ? desk.name() : std::string()) + extension);
}

}  // namespace

QImage diagramImage(const DiagramPainter& draw, const QSize& size) {
  QImage picture(size, QImage::Format_RGB32);
  picture.fill(Qt::white);
  StampBox stamps;
  ImageSurface surface(picture, pictureMetrics(size, 1), stamps);
  draw(surface);
  return picture;
}

QByteArray diagramPng(const DiagramPainter& draw, const QSize& size) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  return diagramImage(draw, size).save(&buffer, "PNG") ? bytes : QByteArray();
}

QByteArray diagramSvg(const DiagramPainter& draw, const QSize& size, const QString& title) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QSvgGenerator generator;
  generator.setOutputDevice(&buffer);
  generator.setTitle(title.toHtmlEscaped());  // it writes the title as it stands
  generator.setResolution(96);                // one unit is a pixel of a browser
  generator.setSize(size);
  generator.setViewBox(QRect(QPoint(), size));
  QPainter painter(&generator);
  PainterSurface surface(painter, pictureMetrics(size, 1), PainterSurface::Edges::exact);
  draw(surface);
  painter.end();
  return bytes;
}

bool savePicture(const PictureDesk& desk, PictureFormat format, const QByteArray& bytes) {
  const std::string path = askForName(desk, format);
  if (path.empty()) return false;
  if (bytes.isEmpty()) {
    report(desk, {dateiTitel(desk.dictionary, operation, ""), desk.dictionary.DicText(TextNichtGespeichert)});
    return false;
  }
  const std::string_view content(bytes.constData(), static_cast<std::size_t>(bytes.size()));
  const SaveResult result = saveFile(desk.fileSystem, path, content);
  if (result.error) report(desk, speichernGescheitert(desk.dictionary, operation, result));
  return result.state == SaveState::saved || result.state == SaveState::inPlace;
}

}  // namespace korvin
