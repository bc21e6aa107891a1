using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>An object whose fields the library does not interpret.</summary>
internal sealed class RawObject(string dxfName) : CadObjectBase
{
    internal override string DxfName => dxfName;

    /// <inheritdoc/>
    internal override bool HasBits => RawRecord.IsKnown(dxfName);

    /// <inheritdoc/>
    internal override void ExchangeBits(BitExchange fields) => RawRecord.Exchange(this, fields);
}
