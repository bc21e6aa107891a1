using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The sets of characters, which texts count from 1.</summary>
public sealed class CharacterSetList : Command
{
    /// <summary>Creates an empty list.</summary>
    public CharacterSetList()
        : base(ClassCode.MetaFileDescriptorElement, (int)MetaFileDescriptorElement.CharacterSetList)
    {
    }

    /// <summary>The kinds of sets.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Type
    {
        /// <summary>94 characters.</summary>
        Graphic94 = 0,

        /// <summary>96 characters.</summary>
        Graphic96 = 1,

        /// <summary>94 characters to the power of some bytes.</summary>
        Multibyte94 = 2,

        /// <summary>96 characters to the power of some bytes.</summary>
        Multibyte96 = 3,

        /// <summary>A code of its own, UTF-8 for one.</summary>
        CompleteCode = 4,
    }

    /// <summary>Gets or sets the kinds of the sets.</summary>
    public List<Type> Types { get; set; } = [];

    /// <summary>Gets or sets the end of the sequence that designates each set (ISO/IEC 2022), as many as
    /// kinds.</summary>
    public List<string> Designations { get; set; } = [];

    internal override void Exchange(ParameterExchange x)
    {
        if (x.IsReading)
        {
            Read(x);
            return;
        }

        if (Types.Count != Designations.Count)
        {
            throw new CgmDataException($"{Types.Count} kinds of sets have {Designations.Count} designations");
        }

        for (int i = 0; i < Types.Count; i++)
        {
            x.Enumeration(Types[i], SharedWords.CharacterSets);
            x.String(Designations[i]);
        }
    }

    internal override void Apply(CodingState state) =>
        state.CharacterSets = [.. Types.Zip(Designations, static (type, tail) => ((int)type, tail))];

    private void Read(ParameterExchange x)
    {
        Types = [];
        Designations = [];
        while (x.HasMore)
        {
            Types.Add(x.Enumeration(default(Type), SharedWords.CharacterSets));
            Designations.Add(x.String(null));
        }
    }
}
