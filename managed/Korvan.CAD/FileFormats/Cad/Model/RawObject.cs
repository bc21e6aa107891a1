using Korvan.CAD.FileFormats.Cad.CadObjects;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>An object whose fields the library does not interpret.</summary>
internal sealed class RawObject(string dxfName) : CadObjectBase
{
    internal override string DxfName => dxfName;
}
