using Korvan.CAD.FileFormats.Cad.Dxf;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A solid body.</summary>
[CadObject("3DSOLID", Subclass = "AcDbModelerGeometry")]
public partial class Cad3DSolid : CadObjectWithAcisData
{
    /// <summary>Creates the object with its defaults.</summary>
    public Cad3DSolid()
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
