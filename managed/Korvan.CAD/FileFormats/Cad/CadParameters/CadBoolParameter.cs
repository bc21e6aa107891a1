using System;
using Korvan.CAD.FileFormats.Cad.CadConsts;

namespace Korvan.CAD.FileFormats.Cad.CadParameters;

/// <summary>A field of an object that is a boolean.</summary>
public sealed class CadBoolParameter : CadParameter
{
    internal CadBoolParameter(int attribute, string subclass, bool value)
        : base(attribute, subclass)
    {
        Value = value;
    }

    /// <inheritdoc/>
    public override CadParameterType Type => CadParameterType.Bool;

    /// <summary>Gets the value.</summary>
    public bool Value { get; }

    /// <inheritdoc/>
    public override string ToString() => FormattableString.Invariant($"{Attribute}: {Value}");
}
