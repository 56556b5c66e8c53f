#pragma once

#include <QString>
#include <QWebEngineUrlSchemeHandler>

// Serves a local folder of map tiles laid out as z/x/y.png (or .jpg) to the map page through the
// "zrktiles" URL scheme, so a technician in the field can use tiles copied from elsewhere. The
// handler sits on the default web profile; a plug-in cannot register the scheme before the
// application exists, and image loads work without it.
class ZRK_Map_TileHandler : public QWebEngineUrlSchemeHandler
{
    Q_OBJECT

public:
    static constexpr const char* kScheme = "zrktiles";

    // Installs the handler once and points it at the folder; returns the URL template for Leaflet.
    static QString serveFolder(const QString& folder);
    // The tile file for a request path ".../z/x/y[.ext]", or empty when the path is not one.
    static QString tileFile(const QString& folder, const QString& path);

    void requestStarted(QWebEngineUrlRequestJob* job) override;

private:
    explicit ZRK_Map_TileHandler(QObject* parent);
    QString m_folder;
};
