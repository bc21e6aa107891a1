using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The lines at texts, such as an underline.</summary>
public sealed class TextScoreType : Command
{
    /// <summary>Creates the element without lines.</summary>
    public TextScoreType()
        : base(ClassCode.AttributeElement, (int)AttributeElement.TextScoreType)
    {
    }

    /// <summary>Gets or sets the lines that are turned on or off.</summary>
    public List<TSInfo> Infos { get; set; } = [];

    internal override void Exchange(ParameterExchange x) =>
        Infos = x.Rest(Infos, static (y, info) => ExchangeOne(y, info));

    private static TSInfo ExchangeOne(ParameterExchange x, TSInfo? info)
    {
        info ??= new TSInfo();
        info.Type = x.Index(info.Type);
        info.IsOn = x.Flag(info.IsOn);
        return info;
    }

    /// <summary>One line at texts.</summary>
    public sealed class TSInfo
    {
        /// <summary>Creates an underline that is off.</summary>
        public TSInfo()
        {
        }

        /// <summary>Gets or sets where the line is: 1 to the right of the text, 2 to its left, 3 through it, 4 marks at
        /// each character; negative numbers are private.</summary>
        public int Type { get; set; } = 1;

        /// <summary>Gets or sets whether the line is drawn.</summary>
        public bool IsOn { get; set; }
    }
}
