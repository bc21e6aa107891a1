using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Nothing; binary files fill gaps with it. What fills the gap is not kept, and clear text has no such
/// element.</summary>
public sealed class NoOp : Command
{
    /// <summary>Creates the element, which has no parameters.</summary>
    public NoOp()
        : base(ClassCode.DelimiterElement, 0)
    {
    }

    internal override void Exchange(ParameterExchange x)
    {
        if (x.IsReading && x.HasMore)
        {
            x.Bits(null);
        }
    }
}
