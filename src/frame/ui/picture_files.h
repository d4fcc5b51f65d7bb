#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <functional>
#include <string>

#include "frame/dictionary.h"
#include "frame/drawing_surface.h"
#include "frame/file_dialog.h"
#include "frame/file_system.h"
#include "frame/message_port.h"

namespace korvin {

/// What saving a picture works with. All outlive it.
struct PictureDesk {
  FileDialog& fileDialog;
  MessagePort& messages;
  Dictionary& dictionary;
  FileSystem& fileSystem;
  std::function<std::string()> folder;  ///< where the dialog starts
  std::function<std::string()> name;    ///< name that is offered, without folder and extension
};

/// Draws a whole diagram on a surface.
using DiagramPainter = std::function<void(DrawingSurface&)>;

/// The diagram as a picture of `size` pixels.
QImage diagramImage(const DiagramPainter& draw, const QSize& size);

/// The same as a PNG file; empty on failure.
QByteArray diagramPng(const DiagramPainter& draw, const QSize& size);

/// The diagram as an SVG file with texts that can be selected. `title` names it.
QByteArray diagramSvg(const DiagramPainter& draw, const QSize& size, const QString& title);

enum class PictureFormat { png, svg };

/// Asks for a name and saves `bytes` there, never harming an older file before the new one is whole. A
/// failure is told in a message. False after a failure or Cancel.
bool savePicture(const PictureDesk& desk, PictureFormat format, const QByteArray& bytes);

}  // namespace korvin
