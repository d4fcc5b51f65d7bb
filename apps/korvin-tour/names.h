#pragma once

#include <QString>

/// Object names of the windows and controls that the walk meets.
namespace korvin::tour::names {

inline const QString mainWindow = QStringLiteral("MDIKorvin");
inline const QString position = QStringLiteral("FormPosition");
inline const QString line = QStringLiteral("FormGeradheit");
inline const QString environment = QStringLiteral("FormUmgebungsAnalyse");
inline const QString searchDialog = QStringLiteral("FormScanComport");
inline const QString message = QStringLiteral("MessageBox");
inline const QString fileDialog = QStringLiteral("CMDialogDatei");
inline const QString fileEntry = QStringLiteral("fileNameEdit");
inline const QString fileInfo = QStringLiteral("FormDateiInfoO");
inline const QString lineInfo = QStringLiteral("FormDateiInfoG");
inline const QString information = QStringLiteral("FormInfo");
inline const QString guide = QStringLiteral("CMDialogHilfe");
inline const QString settings = QStringLiteral("FormOptionsO");
inline const QString lineSettings = QStringLiteral("FormOptionsG");
inline const QString lineTabs = QStringLiteral("TabOptG");
inline const QString printDialog = QStringLiteral("FormDruckInfoO");
inline const QString linePrintDialog = QStringLiteral("FormDruckInfoG");
inline const QString preview = QStringLiteral("PrintPreview");
inline const QString ok = QStringLiteral("cmdOK");

inline const QString single = QStringLiteral("XYMP1");
inline const QString running = QStringLiteral("XYMPN");
inline const QString fast = QStringLiteral("XYMPNN");

}  // namespace korvin::tour::names
