using Korvan.CAD.FileFormats.Cad.Dxf;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;

/// <summary>The outline of a hatched area.</summary>
public interface ICadBoundaryPath
{
    internal bool ReadCode(int code, DxfTagReader tags);

    internal void WriteCodes(DxfTagWriter writer);
}
