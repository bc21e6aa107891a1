using System;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Elements;

/// <summary>Messages and data of applications.</summary>
public static class ExternalElements
{
    internal static readonly ElementEntry[] Table =
    [
        new((int)ExternalElement.MessageCommand, "MESSAGE", static () => new MessageCommand()),
        new((int)ExternalElement.ApplicationData, "APPLDATA", static () => new ApplicationData()),
    ];

    /// <summary>Gives a new command for an element, without parameters yet.</summary>
    /// <param name="element">The element.</param>
    /// <returns>A new command for an element, without parameters yet.</returns>
    /// <exception cref="ArgumentOutOfRangeException">There is no such element.</exception>
    public static Command CreateCommand(ExternalElement element) => Entry(element).Create();

    /// <summary>Gives the word that stands for an element in clear text.</summary>
    /// <param name="element">The element.</param>
    /// <returns>The word that stands for an element in clear text.</returns>
    /// <exception cref="ArgumentOutOfRangeException">There is no such element.</exception>
    public static string GetKeyword(ExternalElement element) => Entry(element).Keyword;

    private static ElementEntry Entry(ExternalElement element) =>
        ElementTables.Get(ClassCode.ExternalElement, element);
}
