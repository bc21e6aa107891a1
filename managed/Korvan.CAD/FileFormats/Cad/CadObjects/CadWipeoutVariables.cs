using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>Settings of wipeouts.</summary>
[CadObject("WIPEOUTVARIABLES", Subclass = "AcDbWipeoutVariables")]
[CadBits("BS DisplayFrame")]
public partial class CadWipeoutVariables : CadObjectBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadWipeoutVariables()
    {
    }

    /// <summary>Gets or sets whether frames are drawn: 0 no, 1 yes. Group code 70.</summary>
    [CadShort(70)]
    public short DisplayFrame { get; set; }
}
