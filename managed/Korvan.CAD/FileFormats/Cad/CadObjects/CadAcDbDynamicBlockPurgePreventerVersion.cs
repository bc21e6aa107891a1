using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>What keeps a dynamic block from being purged while references to its states are left.</summary>
[CadSequence]
[CadObject("ACDB_DYNAMICBLOCKPURGEPREVENTER_VERSION", Subclass = "AcDbDynamicBlockPurgePreventer")]
[CadBits("BS Version", "H BlockHandle")]
public partial class CadAcDbDynamicBlockPurgePreventerVersion : CadObjectBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadAcDbDynamicBlockPurgePreventerVersion()
    {
    }

    /// <summary>Gets or sets the version of the data. Group code 70.</summary>
    [CadShort(70)]
    public short Version { get; set; } = 1;

    /// <summary>Gets or sets the handle of the record of the dynamic block in hexadecimal; empty for none. Group code
    /// 340.</summary>
    [CadHandle(340, Optional = true)]
    public string BlockHandle { get; set; } = "";
}
