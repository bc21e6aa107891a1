using Korvan.CAD.FileFormats.Cad.Dxf;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A flat region.</summary>
[CadObject("REGION", Subclass = "AcDbModelerGeometry")]
public partial class CadRegion : CadObjectWithAcisData
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadRegion()
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
