using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;

/// <summary>An edge of a boundary path.</summary>
public interface ICadBoundaryPathEntity
{
    /// <summary>Gets the kind of the edge. Group code 72.</summary>
    CadHatchBoundaryType EdgeType { get; }

    internal bool ReadField(int code, FieldReader reader);

    internal void Exchange(ObjectExchange fields);

    /// <summary>Carries the fields as drawing databases have them.</summary>
    internal void ExchangeBits(BitExchange fields);
}
