using System;

namespace Korvan.WrpGen.Interop;

/// <summary>
/// Fits a value from Python to an element type, as strictly as a parameter of that type would: no
/// number becomes a number of another kind, but an integer may be of any width that holds it.
/// </summary>
internal static class Items<T>
{
    internal static T Fit(object? value) => value switch
    {
        T fitting => fitting,
        null when default(T) is null => default!,
        int or long or ulong when IsInteger(typeof(T)) => (T)Narrow(value, Type.GetTypeCode(typeof(T))),
        double number when typeof(T) == typeof(float) => (T)(object)(float)number,
        string { Length: 1 } text when typeof(T) == typeof(char) => (T)(object)text[0],
        _ => throw Misfit(value),
    };

    private static bool IsInteger(Type type) =>
        !type.IsEnum && Type.GetTypeCode(type) is >= TypeCode.SByte and <= TypeCode.UInt64;

    private static object Narrow(object value, TypeCode code) => Convert.ChangeType(value, code);

    private static InvalidCastException Misfit(object? value) =>
        new($"can't build {typeof(T).Name} value from '{value?.GetType().Name ?? "None"}'");
}
