#include "sampledocument.h"

#include "files.h"
#include "toolbench.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

const QByteArray document = R"(%PDF-1.4
1 0 obj
<< /Type /Catalog /Pages 2 0 R /Metadata 5 0 R /Outlines 8 0 R
   /Names << /EmbeddedFiles << /Names [(a.txt) 6 0 R] >> >>
   /AcroForm << /Fields [12 0 R] >> >>
endobj
2 0 obj
<< /Type /Pages /Kids [3 0 R 11 0 R] /Count 2 /MediaBox [0 0 200 300] >>
endobj
3 0 obj
<< /Type /Page /Parent 2 0 R /Contents 4 0 R /CropBox [1 2 100 200] /Annots [12 0 R] >>
endobj
4 0 obj
<< /Length 22 >>
stream
1 0 0 rg 9 9 70 90 re f
endstream
endobj
5 0 obj
<< /Type /Metadata /Subtype /XML /Length 41 >>
stream
<x:xmpmeta xmlns:x="adobe:ns:meta/"/>    
endstream
endobj
6 0 obj
<< /Type /Filespec /F (a.txt) /EF << /F 7 0 R >> >>
endobj
7 0 obj
<< /Type /EmbeddedFile /Length 5 >>
stream
hello
endstream
endobj
8 0 obj
<< /Type /Outlines /First 9 0 R /Last 9 0 R /Count 1 >>
endobj
9 0 obj
<< /Title (chapter) /Parent 8 0 R /Dest [3 0 R /Fit] >>
endobj
10 0 obj
<< /Title (Older) /Author (Writer) /Producer (Maker) /Creator (Program) /Custom (own)
   /CreationDate (D:20200101000000Z) /ModDate (D:20200102000000Z) >>
endobj
11 0 obj
<< /Type /Page /Parent 2 0 R /Rotate 90 >>
endobj
12 0 obj
<< /Type /Annot /Subtype /Widget /FT /Tx /T (field) /V (value) /Rect [10 10 60 20] /P 3 0 R >>
endobj
trailer
<< /Root 1 0 R /Info 10 0 R /Size 13 >>
)";

} // namespace

void makeSampleDocument(const QString &path)
{
    const QString text = path + u".text"_s;
    writeContent(text, document);
    const RunResult result =
        runProgram(u"/usr/bin/qpdf"_s,
                   {u"--warning-exit-0"_s, u"--no-warn"_s, u"--stream-data=preserve"_s, text, path},
                   QFileInfo(path).path());
    if (result.status != 0)
        qFatal("qpdf cannot make a PDF: %s", result.errors.constData());
    QFile::remove(text);
}
