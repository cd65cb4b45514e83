// An HTML document that grows line by line, with the pieces that all reports share.
#pragma once

#include "core/platform/LineFormat.h"

#include <array>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

/// The tables of the reports: the frame around a block, a table inside it, a table of data.
constexpr const char* kOuterFrame =
    R"(<TABLE cellspacing="0" ALIGN=CENTER CELLPADDING=8 border="1" bordercolor="#CBD3E1" HSPACE=5 width = "100%">)";
constexpr const char* kInnerTable =
    R"(<TABLE cellspacing="0" ALIGN=CENTER CELLPADDING="1" border="0" bordercolor="#CBD3E1" HSPACE=5 width = "100%">)";
constexpr const char* kDataTable =
    R"(<TABLE cellspacing="0" ALIGN=CENTER CELLPADDING="2" border="0" bordercolor="#CBD3E1" HSPACE=5 width = "80%">)";

/// Takes the next piece of a text.
using CTextSink = std::function<void(std::string_view)>;

class CHtmlPage
{
public:
    /// With a sink, the document goes there piece by piece and is not kept; without one, it stays whole in
    /// memory.
    explicit CHtmlPage(CTextSink sink = {}) : m_sink(std::move(sink)) {}

    /// Writes a text as it stands, without its carriage returns, and ends it with a line feed.
    void WriteLine(std::string_view text);
    /// The same with its placeholders filled: WriteLine("<TD>%.3f</TD>", value).
    template <class... Values>
    requires(sizeof...(Values) > 0) void WriteLine(std::type_identity_t<CLineFormat<Values...>> format,
                                                   const Values&... values)
    {
        WriteValues(format.Text(), std::array<CFormatValue, sizeof...(Values)>{CFormatValue(values)...});
    }

    /// The document's head up to and with the line that opens the body.
    void WriteHead(const char* title);
    /// The lines that close body and document.
    void WriteTail();
    void PageBreak();
    /// The link back to the contents that ends each section.
    void ContentsLink();

    /// A frame around a block: opened, and closed when no table is open inside.
    void OpenFrame(const char* literal = kOuterFrame);
    void CloseFrame();
    /// Closes the table inside a frame and the frame.
    void CloseTableAndFrame();

    /// Hands on what the sink hasn't had yet.
    void Flush();
    /// What was written; with a sink, what it hasn't had yet.
    const std::string& Text() const { return m_text; }

private:
    void WriteValues(std::string_view format, std::span<const CFormatValue> values);
    void EndLine(std::size_t start);

    CTextSink m_sink;
    std::string m_text;
};
