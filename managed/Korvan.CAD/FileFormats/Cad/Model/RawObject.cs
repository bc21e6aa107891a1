using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Dxf;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>An object whose codes nobody interprets.</summary>
internal sealed class RawObject(string dxfName) : CadObjectBase
{
    internal override string DxfName => dxfName;
}
