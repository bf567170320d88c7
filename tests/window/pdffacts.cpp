#include "pdffacts.h"

#include <memory>

#include <poppler-qt6.h>

namespace {

using DocumentPtr = std::unique_ptr<Poppler::Document>;

// The owner's password lifts every restriction in poppler, so the user's comes first.
DocumentPtr openDocument(const QString &path, const QByteArray &password)
{
    DocumentPtr document = Poppler::Document::load(path, {}, password);
    if (document && document->isLocked() && !password.isEmpty())
        document = Poppler::Document::load(path, password, {});
    return document;
}

QList<QSizeF> pageSizesOf(const Poppler::Document &document)
{
    QList<QSizeF> sizes;
    for (int i = 0; i < document.numPages(); ++i) {
        const std::unique_ptr<Poppler::Page> page(document.page(i));
        sizes.append(page ? page->pageSizeF() : QSizeF());
    }
    return sizes;
}

void readUnlocked(const Poppler::Document &document, PdfFacts &facts)
{
    facts.pages = document.numPages();
    facts.pageSizes = pageSizesOf(document);
    facts.title = document.info(QStringLiteral("Title"));
    facts.subject = document.info(QStringLiteral("Subject"));
    facts.keywords = document.info(QStringLiteral("Keywords"));
    facts.author = document.info(QStringLiteral("Author"));
    facts.mayPrint = document.okToPrint();
    facts.mayModify = document.okToChange();
    facts.mayCopy = document.okToCopy();
    facts.mayAnnotate = document.okToAddNotes();
}

} // namespace

PdfFacts readPdf(const QString &path, const QByteArray &password)
{
    PdfFacts facts;
    const DocumentPtr document = openDocument(path, password);
    if (!document)
        return facts;
    facts.readable = true;
    facts.encrypted = document->isEncrypted();
    facts.needsPassword = document->isLocked();
    if (facts.needsPassword)
        facts.encrypted = true;
    else
        readUnlocked(*document, facts);
    return facts;
}
