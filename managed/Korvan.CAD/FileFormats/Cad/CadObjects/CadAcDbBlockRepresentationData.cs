using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>Which dynamic block an anonymous block represents in one of its states.</summary>
[CadSequence]
[CadObject("ACDB_BLOCKREPRESENTATION_DATA", Subclass = "AcDbBlockRepresentationData")]
[CadBits("BS Version", "H BlockHandle")]
public partial class CadAcDbBlockRepresentationData : CadObjectBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadAcDbBlockRepresentationData()
    {
    }

    /// <summary>Gets or sets the version of the data. Group code 70.</summary>
    [CadShort(70)]
    public short Version { get; set; } = 1;

    /// <summary>Gets or sets the handle of the record of the dynamic block in hexadecimal. Group code 340.</summary>
    [CadHandle(340)]
    public string BlockHandle { get; set; } = "0";
}
