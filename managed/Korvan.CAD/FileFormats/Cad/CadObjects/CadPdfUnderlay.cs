using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A page of a PDF file below the drawing.</summary>
[CadObject("PDFUNDERLAY")]
[CadBits("base")]
public partial class CadPdfUnderlay : CadUnderlay
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadPdfUnderlay()
    {
    }
}
