using System;
using System.Diagnostics.CodeAnalysis;
using System.Globalization;
using System.Numerics;
using System.Runtime.CompilerServices;
using Korvan.WrpGen.Naming;

namespace Korvan.CAD.Binding;

/// <summary>Verifies arguments and property values. Errors name them as Python programs do.</summary>
internal static class Verify
{
    private const string SetterParameter = "value";

    internal static void NotNull(
        [NotNull] object? argument,
        [CallerArgumentExpression(nameof(argument))] string name = "",
        [CallerMemberName] string member = "")
    {
        if (argument is null)
        {
            throw new ArgumentNullException(null, $"{Shown(name, member)} must not be None.");
        }
    }

    /// <summary>Throws for an array that is null, or that has a null item.</summary>
    internal static void NoneIsNull<T>(
        [NotNull] T[]? argument,
        [CallerArgumentExpression(nameof(argument))] string name = "",
        [CallerMemberName] string member = "")
        where T : class
    {
        NotNull(argument, name, member);
        if (Array.IndexOf(argument, null) is var at and >= 0)
        {
            throw new ArgumentNullException(null, $"{Shown(name, member)} must not hold None; item {at} is.");
        }
    }

    internal static void NotEmpty(
        [NotNull] string? argument,
        [CallerArgumentExpression(nameof(argument))] string name = "",
        [CallerMemberName] string member = "")
    {
        NotNull(argument, name, member);
        if (argument.Length == 0)
        {
            throw new ArgumentException($"{Shown(name, member)} cannot be empty.");
        }
    }

    internal static void NotBlank(
        [NotNull] string? argument,
        [CallerArgumentExpression(nameof(argument))] string name = "",
        [CallerMemberName] string member = "")
    {
        NotNull(argument, name, member);
        if (string.IsNullOrWhiteSpace(argument))
        {
            throw new ArgumentException($"{Shown(name, member)} cannot be empty or blank.");
        }
    }

    internal static void NotNegative<T>(
        T argument,
        [CallerArgumentExpression(nameof(argument))] string name = "",
        [CallerMemberName] string member = "")
        where T : INumber<T>
    {
        if (T.IsNegative(argument))
        {
            throw OutOfRange(name, argument, "It has to be 0 or more.", member);
        }
    }

    internal static void NotBelow<T>(
        T argument,
        T low,
        [CallerArgumentExpression(nameof(argument))] string name = "",
        [CallerMemberName] string member = "")
        where T : INumber<T>
    {
        if (!(argument >= low))
        {
            throw OutOfRange(name, argument, $"It has to be {Text(low)} or more.", member);
        }
    }

    internal static void InRange<T>(
        T argument,
        T low,
        T high,
        [CallerArgumentExpression(nameof(argument))] string name = "",
        [CallerMemberName] string member = "")
        where T : INumber<T>
    {
        if (!(argument >= low && argument <= high))
        {
            throw OutOfRange(name, argument, $"It has to be {Text(low)} to {Text(high)}.", member);
        }
    }

    /// <summary>Creates the exception for a value that is out of range.</summary>
    /// <param name="name">The managed name of the argument; that of a setter is replaced by the name of its
    /// property.</param>
    /// <param name="argument">The value.</param>
    /// <param name="why">A sentence that states the valid values.</param>
    /// <param name="member">The member that verifies.</param>
    internal static ArgumentOutOfRangeException OutOfRange(
        string name, object? argument, string why, [CallerMemberName] string member = "")
    {
        return new ArgumentOutOfRangeException(null, $"{Shown(name, member)} cannot be {Text(argument)}. {why}");
    }

    /// <summary>Returns the Python name of an enum member.</summary>
    internal static string NameOf<T>(T member)
        where T : struct, Enum => PythonName.Upper(member.ToString());

    private static string Shown(string name, string member) =>
        PythonName.Lower(name == SetterParameter ? member : name);

    private static string Text(object? argument) => argument switch
    {
        null => "None",
        Enum member when Enum.IsDefined(member.GetType(), member) => PythonName.Upper(member.ToString()),
        _ => Convert.ToString(argument, CultureInfo.InvariantCulture) ?? "",
    };
}
