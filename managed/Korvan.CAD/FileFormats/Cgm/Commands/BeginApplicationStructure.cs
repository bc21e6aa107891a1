using System;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Begins a part of the picture that means something to an application.</summary>
public sealed class BeginApplicationStructure : Command
{
    private static readonly string[] Words = ["STLIST", "APS"];

    /// <summary>Creates the element with its defaults.</summary>
    public BeginApplicationStructure()
        : base(ClassCode.DelimiterElement, (int)DelimiterElement.BeginApplicationStructure)
    {
    }

    /// <summary>Creates the element with its parameters.</summary>
    /// <param name="identifier">The name, unique in its picture.</param>
    /// <param name="structureType">What kind of part it is.</param>
    public BeginApplicationStructure(string identifier, string structureType)
        : this()
    {
        Verify.NotNull(identifier);
        Verify.NotNull(structureType);
        Identifier = identifier;
        StructureType = structureType;
    }

    /// <summary>Where the attributes inside a structure come from.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum InheritanceFlag
    {
        /// <summary>From what was set before.</summary>
        StateList = 0,

        /// <summary>From the structure that this one stands in.</summary>
        ApplicationStructure = 1,
    }

    /// <summary>Gets or sets the name, unique in its picture.</summary>
    public string Identifier { get; set; } = "";

    /// <summary>Gets or sets what kind of part it is.</summary>
    public string StructureType { get; set; } = "";

    /// <summary>Gets or sets where attributes come from.</summary>
    public InheritanceFlag Inheritance { get; set; }

    internal override void Exchange(ParameterExchange x)
    {
        Identifier = x.String(Identifier);
        StructureType = x.String(StructureType);
        Inheritance = x.Enumeration(Inheritance, Words);
    }
}
