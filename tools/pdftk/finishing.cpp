#include "finishing.h"

#include "error.h"

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFExc.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFWriter.hh>
#include <qpdf/QUtil.hh>

#include <algorithm>
#include <array>
#include <new>
#include <string_view>

namespace {

void open(QPDF &pdf, const std::string &path)
{
    // What is repaired may have lost pages.
    pdf.setAttemptRecovery(false);
    pdf.setSuppressWarnings(true);
    pdf.processFile(path.c_str());
    const bool everythingAllowed = pdf.allowModifyAll() && pdf.allowExtractAll() &&
                                   pdf.allowAccessibility() && pdf.allowPrintHighRes();
    if (pdf.isEncrypted() && !pdf.ownerPasswordMatched() && !everythingAllowed)
        throw ToolError("cannot change '" + path + "': it is protected by an owner password");
}

// Of a whole PDF that was written carelessly: libqpdf 11.3 goes on without losing anything. The
// text is all that tells its warnings apart.
bool isHarmless(const QPDFExc &warning)
{
    constexpr std::array<std::string_view, 3> harmless = {
        "/Type key should be /Page",
        "appears more than once in the pages tree",
        "extraneous whitespace seen before xref",
    };
    const std::string &text = warning.getMessageDetail();
    return std::any_of(harmless.begin(), harmless.end(), [&text](std::string_view part) {
        return text.find(part) != std::string::npos;
    });
}

void requireNoDamage(QPDF &pdf)
{
    for (const QPDFExc &warning : pdf.getWarnings()) {
        if (!isHarmless(warning))
            throw warning;
    }
}

void requireAllPages(QPDF &pdf, const std::string &path)
{
    const size_t pages = QPDFPageDocumentHelper(pdf).getAllPages().size();
    QPDFObjectHandle stated = pdf.getRoot().getKey("/Pages").getKey("/Count");
    if (pages == 0 || !stated.isInteger() || stated.getUIntValueAsUInt() != pages)
        throw ToolError("cannot read '" + path + "': pages are missing");
}

// Outside of plain ASCII, readers agree on UTF-16 alone.
QPDFObjectHandle textString(const std::string &text)
{
    const bool plain = std::all_of(text.begin(), text.end(), [](char character) {
        return (character >= ' ' && character <= '~') || character == '\n' || character == '\t';
    });
    return QPDFObjectHandle::newString(plain ? text : QUtil::utf8_to_utf16(text));
}

void describe(QPDF &pdf, const std::vector<InfoEntry> &entries)
{
    if (entries.empty())
        return;
    QPDFObjectHandle information = pdf.getTrailer().getKey("/Info");
    if (!information.isDictionary()) {
        information = pdf.makeIndirectObject(QPDFObjectHandle::newDictionary());
        pdf.getTrailer().replaceKey("/Info", information);
    }
    for (const InfoEntry &entry : entries)
        information.replaceKey("/" + entry.key, textString(entry.value));
}

// As pdftk-java 3.3.2 has it: "modifycontents" includes assembling, "copycontents" access for
// screen readers (which revision 6 always grants), "modifyannotations" filling in forms.
void encrypt(QPDFWriter &writer, const Encryption &encryption)
{
    const Permissions &allowed = encryption.allowed;
    constexpr bool encryptMetadata = true;
    writer.setR6EncryptionParameters(
        encryption.userPassword.c_str(), encryption.ownerPassword.c_str(), allowed.copyContents,
        allowed.copyContents, allowed.modifyContents, allowed.modifyAnnotations,
        allowed.modifyAnnotations, allowed.modifyContents,
        allowed.printing ? qpdf_r3p_full : qpdf_r3p_none, encryptMetadata);
}

void write(QPDF &pdf, const std::optional<Encryption> &encryption, FileOutput &output)
{
    QPDFWriter writer(pdf);
    writer.setOutputPipeline(&output);
    writer.setStreamDataMode(qpdf_s_preserve);
    writer.setPreserveEncryption(false);
    if (encryption)
        encrypt(writer, *encryption);
    writer.write();
    output.requireSuccess();
}

} // namespace

void writeFinishedPdf(const std::string &input, const std::vector<InfoEntry> &entries,
                      const std::optional<Encryption> &encryption, FileOutput &output)
{
    try {
        QPDF pdf;
        open(pdf, input);
        requireAllPages(pdf, input);
        describe(pdf, entries);
        write(pdf, encryption, output);
        requireNoDamage(pdf);
    } catch (const ToolError &) {
        throw;
    } catch (const std::bad_alloc &) {
        throw;
    } catch (const QPDFExc &error) {
        throw ToolError("cannot read '" + input + "': " + error.getMessageDetail());
    } catch (const std::exception &error) {
        throw ToolError("cannot read '" + input + "': " + error.what());
    }
}
