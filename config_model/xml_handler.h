#pragma once

// The parser's side of loading. Kept apart from serialize.h because the SAX classes are
// deprecated in Qt 5.15: only the files that include this header need the warning switched off.

#include "config_model/serialize.h"
#include "config_model/xml_tag.h"

#include <QXmlDefaultHandler>

// Receives the parser's events and builds the tree.
class CXmlDefaultHandler : public QXmlDefaultHandler
{
public:
    CXmlDefaultHandler() = default;
    ~CXmlDefaultHandler() override;

    bool startDocument() override;
    bool startElement(const QString& namespaceURI, const QString& localName, const QString& qName,
        const QXmlAttributes& atts) override;
    bool characters(const QString& text) override;
    bool endElement(const QString& namespaceURI, const QString& localName, const QString& qName) override;
    bool fatalError(const QXmlParseException& exception) override;
    QString errorString() const override;

    // The inverse of XmlWriter::protectTag, in the same order.
    static QString protect(const QString& name);
    // Escapes a value the way the writer does.
    static QString protectValue(const QString& value);

    // Hands the finished tree to the caller (null if none was built).
    CXmlTagV2* takeRoot();
    // Destroys a partly built tree.
    void reset();
    QString lastError() const { return m_error; }

private:
    CXmlTagV2* m_root = nullptr;
    CXmlTagV2* m_current = nullptr;
    bool m_lastStartHadAttributes = false;
    int m_depth = 0;
    QString m_error;
};
