namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A line that runs on for ever both ways.</summary>
[CadObject("XLINE", Subclass = "AcDbXline")]
public partial class CadXLine : CadBaseInfinityEntity
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadXLine()
    {
    }
}
