using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;

/// <summary>A boundary path of a hatch.</summary>
public interface ICadBoundaryPath
{
    internal bool ReadField(int code, FieldReader reader);

    internal void Exchange(ObjectExchange fields);

    /// <summary>Carries the fields as drawing databases have them.</summary>
    internal void ExchangeBits(BitExchange fields);
}
