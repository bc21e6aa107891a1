using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>The fields of the modeler within those of a surface.</summary>
/// <param name="owner">The surface.</param>
internal sealed class ModelerFields(CadObjectWithAcisData owner)
{
    /// <summary>Carries the fields.</summary>
    /// <param name="fields">What carries them.</param>
    internal void Exchange(ObjectExchange fields) => owner.ExchangeAcis(fields);
}
