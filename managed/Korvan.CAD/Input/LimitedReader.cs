using System.IO;
using System.Xml;

namespace Korvan.CAD.Input;

/// <summary>A reader of XML that ends at elements nested too deep, and with the budget of the call.</summary>
internal sealed class LimitedReader : XmlTextReader
{
    /// <summary>Creates a reader of text.</summary>
    internal LimitedReader(TextReader source)
        : base(source) => Restrict();

    /// <summary>Creates a reader of bytes, whose encoding the document states.</summary>
    internal LimitedReader(Stream source)
        : base(source) => Restrict();

    /// <inheritdoc/>
    public override bool Read()
    {
        Budget.Check();
        if (!base.Read())
        {
            return false;
        }

        return Depth <= SafeXml.MaxDepth
            ? true
            : throw new XmlException(
                $"Elements are nested deeper than {SafeXml.MaxDepth} levels", null, LineNumber, LinePosition);
    }

    private void Restrict()
    {
        DtdProcessing = DtdProcessing.Prohibit;
        XmlResolver = null;
        Normalization = true;
        WhitespaceHandling = WhitespaceHandling.All;
    }
}
