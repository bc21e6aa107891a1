using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Dxf;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;

/// <summary>An edge of an outline.</summary>
public interface ICadBoundaryPathEntity
{
    /// <summary>Gets the kind of the edge. Group code 72.</summary>
    CadHatchBoundaryType EdgeType { get; }

    internal bool ReadCode(int code, DxfTagReader tags);

    internal void WriteCodes(DxfTagWriter writer);
}
