using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>The history of a solid.</summary>
[CadSequence]
[CadObject("ACSH_HISTORY_CLASS", Subclass = "AcDbShHistory")]
[CadBits("BL MajorVersion", "BL MinorVersion", "H GraphHandle", "BL LastNodeId", "B ShowHistory", "B RecordHistory")]
public partial class CadAcshHistoryClass : CadObjectBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadAcshHistoryClass()
    {
    }

    /// <summary>Gets or sets the major version of the program that wrote the history. Group code 90.</summary>
    [CadInt(90)]
    public int MajorVersion { get; set; } = 33;

    /// <summary>Gets or sets the minor version of the program that wrote the history. Group code 91.</summary>
    [CadInt(91)]
    public int MinorVersion { get; set; } = 29;

    /// <summary>Gets or sets the handle of the evaluation graph with the steps, in hexadecimal. Group code
    /// 360.</summary>
    [CadHandle(360)]
    public string GraphHandle { get; set; } = "0";

    /// <summary>Gets or sets the index of the last step. Group code 92.</summary>
    [CadInt(92)]
    public int LastNodeId { get; set; }

    /// <summary>Gets or sets whether the solids of the steps are shown. Group code 280.</summary>
    [CadBool(280)]
    public bool ShowHistory { get; set; }

    /// <summary>Gets or sets whether further steps are recorded. Group code 281.</summary>
    [CadBool(281)]
    public bool RecordHistory { get; set; }
}
