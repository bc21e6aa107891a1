using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>How characters are coded in texts.</summary>
public sealed class CharacterCodingAnnouncer : Command
{
    private static readonly string[] Words = ["BASIC7BIT", "BASIC8BIT", "EXTD7BIT", "EXTD8BIT"];

    /// <summary>Creates the element with its defaults.</summary>
    public CharacterCodingAnnouncer()
        : base(ClassCode.MetaFileDescriptorElement, (int)MetaFileDescriptorElement.CharacterCodingAnnouncer)
    {
    }

    /// <summary>The techniques of coding (ISO/IEC 8632-1, 7.3.15).</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Type
    {
        /// <summary>One set of characters of 7 bits.</summary>
        Basic7Bit = 0,

        /// <summary>Two sets of characters, told apart by the eighth bit.</summary>
        Basic8Bit = 1,

        /// <summary>Sets are switched by the sequences of ISO/IEC 2022; 7 bits.</summary>
        Extended7Bit = 2,

        /// <summary>Sets are switched by the sequences of ISO/IEC 2022; 8 bits.</summary>
        Extended8Bit = 3,
    }

    /// <summary>Gets or sets the technique.</summary>
    public Type Value { get; set; }

    internal override void Exchange(ParameterExchange x) => Value = x.Enumeration(Value, Words);
}
