using Korvan.CAD.FileFormats.Cad.CadConsts;

namespace Korvan.CAD.FileFormats.Cad.CadParameters;

/// <summary>A field of an object: its group code, its subclass and its value.</summary>
public abstract class CadParameter
{
    internal CadParameter(int attribute, string subclass)
    {
        Attribute = attribute;
        Subclass = subclass;
    }

    /// <summary>Gets the group code.</summary>
    public int Attribute { get; }

    /// <summary>Gets the marker of the subclass that the field belongs to; empty for none.</summary>
    public string Subclass { get; }

    /// <summary>Gets the type of the value.</summary>
    public abstract CadParameterType Type { get; }

    /// <summary>Gets which integer the value is; none for other values.</summary>
    public CadIntegralParameterType IntegralType => Type switch
    {
        CadParameterType.Bool => CadIntegralParameterType.Bool,
        CadParameterType.Short => CadIntegralParameterType.Short,
        CadParameterType.Int => CadIntegralParameterType.Int,
        CadParameterType.Long => CadIntegralParameterType.Long,
        _ => CadIntegralParameterType.None,
    };
}
