using Korvan.CAD.FileFormats.Cad.Dxf;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A body.</summary>
[CadObject("BODY", Subclass = "AcDbModelerGeometry")]
public partial class CadBody : CadObjectWithAcisData
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadBody()
    {
    }

    partial void OnReadCode(int code, DxfTagReader tags, ref bool taken)
    {
        taken = ReadAcis(code, tags);
    }

    partial void OnWriteCodes(DxfTagWriter writer)
    {
        WriteAcis(writer);
    }
}
