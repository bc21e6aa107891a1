using System;
using Korvan.CAD.FileFormats.Cad.CadConsts;

namespace Korvan.CAD.FileFormats.Cad.CadParameters;

/// <summary>A field of an object that is a string, a name or a handle.</summary>
public sealed class CadStringParameter : CadParameter
{
    internal CadStringParameter(int attribute, string subclass, string value)
        : base(attribute, subclass)
    {
        Value = value;
    }

    /// <inheritdoc/>
    public override CadParameterType Type => CadParameterType.String;

    /// <summary>Gets the value.</summary>
    public string Value { get; }

    /// <inheritdoc/>
    public override string ToString() => FormattableString.Invariant($"{Attribute}: {Value}");
}
