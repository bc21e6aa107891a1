using Korvan.CAD.FileFormats.Cad.CadObjects;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>An object of the data section whose fields the library does not interpret.</summary>
internal sealed class RawAcds(string dxfName) : CadBaseAcds
{
    internal override string DxfName => dxfName;
}
