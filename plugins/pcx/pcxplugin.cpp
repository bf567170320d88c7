#include "pcxplugin.h"

#include "pcxhandler.h"

QImageIOPlugin::Capabilities PcxPlugin::capabilities(QIODevice *device,
                                                     const QByteArray &format) const
{
    // Without a device only the format's name counts.
    if (!device)
        return format == "pcx" ? CanRead : Capabilities();
    const bool isAsked = format.isEmpty() || format == "pcx";
    return isAsked && PcxHandler::canRead(device) ? CanRead : Capabilities();
}

QImageIOHandler *PcxPlugin::create(QIODevice *device, const QByteArray &format) const
{
    auto *handler = new PcxHandler;
    handler->setDevice(device);
    handler->setFormat(format);
    return handler;
}
