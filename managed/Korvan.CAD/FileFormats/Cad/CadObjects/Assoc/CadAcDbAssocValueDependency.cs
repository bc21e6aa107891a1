using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Assoc;

/// <summary>A dependency of an associative action on a value of an object, as that of a variable; its fields are those
/// of any dependency.</summary>
[CadObject("ACDBASSOCVALUEDEPENDENCY")]
[CadBits("base", "if fields.HasMore: BS", "if fields.HasMore: Part CachedValue")]
public partial class CadAcDbAssocValueDependency : CadAcDbAssocDependency
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadAcDbAssocValueDependency()
    {
    }

    /// <summary>Gets the value of the object when it was last evaluated, which databases have.</summary>
    internal AssocEvaluatedVariant CachedValue { get; } = new();
}
