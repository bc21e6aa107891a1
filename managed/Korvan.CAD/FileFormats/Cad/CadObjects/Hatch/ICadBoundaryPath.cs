using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;

/// <summary>The outline of a hatched area.</summary>
public interface ICadBoundaryPath
{
    internal bool ReadField(int code, FieldReader reader);

    internal void Exchange(ObjectExchange fields);
}
