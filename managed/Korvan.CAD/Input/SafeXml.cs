using System;
using System.IO;
using System.Xml;

namespace Korvan.CAD.Input;

/// <summary>Readers of XML from strangers: no document type definition, nothing from elsewhere, and a limit for nested
/// elements, as what is made of them is processed recursively.</summary>
internal static class SafeXml
{
    /// <summary>The levels of nested elements that a document may have.</summary>
    internal const int MaxDepth = 256;

    /// <summary>Opens a reader.</summary>
    /// <param name="source">The document.</param>
    /// <param name="maxCharacters">The length that the document may have; 0 for no limit.</param>
    /// <param name="keepsNotes">Whether comments, processing instructions and white space are read, too.</param>
    internal static XmlReader Open(Stream source, long maxCharacters = 0, bool keepsNotes = false) =>
        Open(new LimitedReader(source), maxCharacters, keepsNotes);

    /// <inheritdoc cref="Open(Stream, long, bool)"/>
    internal static XmlReader Open(TextReader source, long maxCharacters = 0, bool keepsNotes = false) =>
        Open(new LimitedReader(source), maxCharacters, keepsNotes);

    /// <summary>Returns what is wrong with a document, without a period.</summary>
    internal static string Reason(XmlException failure) =>
        failure.Message.Contains("DTD", StringComparison.Ordinal)
            ? "a document type definition (DTD) is not allowed"
            : SafeText.Of(failure.Message.TrimEnd('.'));

    private static XmlReader Open(LimitedReader reader, long maxCharacters, bool keepsNotes) =>
        XmlReader.Create(reader, new XmlReaderSettings
        {
            DtdProcessing = DtdProcessing.Prohibit,
            XmlResolver = null,
            MaxCharactersInDocument = maxCharacters,
            IgnoreComments = !keepsNotes,
            IgnoreWhitespace = !keepsNotes,
            IgnoreProcessingInstructions = !keepsNotes,
            CloseInput = true,
        });
}
