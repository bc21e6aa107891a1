using System;
using System.Runtime.InteropServices;

namespace Korvan.Bench;

/// <summary>What the functions of <see cref="Floor"/> work on.</summary>
public sealed class Item(int number)
{
    public int Number { get; } = number;

    public double Real { get; set; } = 0.5;

    public string Text => "layer";

    public byte[]? Blob { get; set; }

    public bool CanTake(Item other) => Number == other.Number;
}

/// <summary>Exported functions with nothing around them: no checks, no records, no guard but the one that must
/// be, where an exception is thrown.</summary>
public static unsafe class Floor
{
    private static readonly Item[] Items = new Item[1000];
    private static delegate* unmanaged<char*, int, nint> _newString;
    private static delegate* unmanaged<char*, int, void> _raise;

    [UnmanagedCallersOnly]
    public static int Answer() => 42;

    [UnmanagedCallersOnly]
    public static void SetCallbacks(nint newString, nint raise)
    {
        _newString = (delegate* unmanaged<char*, int, nint>)newString;
        _raise = (delegate* unmanaged<char*, int, void>)raise;
        for (int i = 0; i < Items.Length; i++)
        {
            Items[i] = new Item(i);
        }
    }

    [UnmanagedCallersOnly]
    public static nint New(int number) => Handle(new Item(number));

    [UnmanagedCallersOnly]
    public static nint ItemAt(int index) => Handle(Items[index % Items.Length]);

    [UnmanagedCallersOnly]
    public static void Free(nint handle) => GCHandle.FromIntPtr(handle).Free();

    [UnmanagedCallersOnly]
    public static int GetNumber(nint handle) => Target(handle).Number;

    [UnmanagedCallersOnly]
    public static double GetReal(nint handle) => Target(handle).Real;

    [UnmanagedCallersOnly]
    public static void SetReal(nint handle, double value) => Target(handle).Real = value;

    [UnmanagedCallersOnly]
    public static nint GetText(nint handle) => NewString(Target(handle).Text);

    [UnmanagedCallersOnly]
    public static void SetBlob(nint handle, void* data, int size) =>
        Target(handle).Blob = new ReadOnlySpan<byte>(data, size).ToArray();

    [UnmanagedCallersOnly]
    public static byte CanTake(nint handle, nint other) => Target(handle).CanTake(Target(other)) ? (byte)1 : (byte)0;

    [UnmanagedCallersOnly]
    public static nint PickNumber(nint handle, int value) => NewString("int");

    [UnmanagedCallersOnly]
    public static nint PickReal(nint handle, double value) => NewString("double");

    [UnmanagedCallersOnly]
    public static void Fail(nint handle)
    {
        try
        {
            throw new InvalidOperationException("can't be read");
        }
        catch (InvalidOperationException e)
        {
            fixed (char* text = e.Message)
            {
                _raise(text, e.Message.Length);
            }
        }
    }

    private static nint Handle(Item item) => GCHandle.ToIntPtr(GCHandle.Alloc(item));

    private static Item Target(nint handle) => (Item)GCHandle.FromIntPtr(handle).Target!;

    private static nint NewString(string value)
    {
        fixed (char* text = value)
        {
            return _newString(text, value.Length);
        }
    }
}
