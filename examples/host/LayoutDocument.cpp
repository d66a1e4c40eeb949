#include "LayoutDocument.h"

#include <QStringList>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace Norvane { namespace Host { namespace LayoutDocument {

namespace {

QStringList contentAttributes()
{
    return QStringList() << QLatin1String("layout") << QLatin1String("activePageId") << QLatin1String("focus")
                         << QLatin1String("hideTitles");
}

QStringList placeAttributes()
{
    return QStringList() << QLatin1String("x") << QLatin1String("y") << QLatin1String("w")
                         << QLatin1String("h") << QLatin1String("screen") << QLatin1String("maximized")
                         << QLatin1String("fullscreen") << QLatin1String("size");
}

QByteArray without(const QStringList& names, const QByteArray& layout)
{
    QByteArray result;
    QXmlStreamReader reader(layout);
    QXmlStreamWriter writer(&result);
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isEndElement())
            writer.writeEndElement();
        if (!reader.isStartElement())
            continue;
        writer.writeStartElement(reader.name().toString());
        const QXmlStreamAttributes attributes = reader.attributes();
        for (const QXmlStreamAttribute& attribute : attributes) {
            if (!names.contains(attribute.name().toString()))
                writer.writeAttribute(attribute);
        }
    }
    return reader.hasError() ? QByteArray() : result;
}

QXmlStreamAttributes withState(const QXmlStreamAttributes& attributes, const QString& state)
{
    const QString name = QLatin1String("layout");
    QXmlStreamAttributes result;
    for (const QXmlStreamAttribute& attribute : attributes) {
        if (attribute.name() != name)
            result.append(attribute);
    }
    if (!state.isEmpty())
        result.append(name, state);
    return result;
}

} // namespace

QByteArray arrangementOf(const QByteArray& layout)
{
    return without(contentAttributes(), layout);
}

QByteArray structureOf(const QByteArray& layout)
{
    return without(contentAttributes() + placeAttributes(), layout);
}

QByteArray withStates(const QByteArray& layout, const QMap<QString, QString>& states)
{
    QByteArray result;
    QXmlStreamReader reader(layout);
    QXmlStreamWriter writer(&result);
    while (!reader.atEnd()) {
        reader.readNext();
        const QString id = reader.attributes().value(QLatin1String("id")).toString();
        if (reader.isStartElement() && reader.name() == QLatin1String("page") && states.contains(id)) {
            writer.writeStartElement(reader.name().toString());
            writer.writeAttributes(withState(reader.attributes(), states.value(id)));
        } else if (reader.tokenType() != QXmlStreamReader::Invalid) {
            writer.writeCurrentToken(reader);
        }
    }
    return reader.hasError() ? layout : result;
}

}}} // namespace Norvane::Host::LayoutDocument
