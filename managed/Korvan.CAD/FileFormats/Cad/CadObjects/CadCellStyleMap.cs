using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>The cell styles of a table style.</summary>
[CadSequence]
[CadObject("CELLSTYLEMAP", Subclass = "AcDbCellStyleMap")]
[CadBits("Part[BL] Styles")]
public partial class CadCellStyleMap : CadObjectBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadCellStyleMap()
    {
    }

    /// <summary>Gets the cell styles. The list is live. Group code 90.</summary>
    [CadRepeated(90, Count = 90)]
    public IList<CadCellStyle> Styles { get; } = new CheckedList<CadCellStyle>("styles");
}
