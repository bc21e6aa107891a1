using Korvan.CAD.FileFormats.Cad.CadObjects.AcadTable;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>The content of a table.</summary>
[CadSequence]
[CadObject("TABLECONTENT", Subclass = "AcDbTableContent")]
[CadBits("base", "H TableStyleHandle")]
public partial class CadTableContent : CadFormattedTableData
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadTableContent()
    {
    }

    /// <summary>Gets or sets the handle of the table style in hexadecimal. Group code 340.</summary>
    [CadHandle(340)]
    public string TableStyleHandle { get; set; } = "0";
}
