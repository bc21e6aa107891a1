using System;

namespace Korvan.CAD.CadExceptions;

/// <summary>Data could not be compressed or decompressed.</summary>
public class CompressorException : FrameworkException
{
    /// <summary>Creates the exception with a message.</summary>
    /// <param name="message">The message: what failed, where, and how to correct it.</param>
    public CompressorException(string message)
        : base(message)
    {
    }

    /// <summary>Creates the exception with a message and its cause.</summary>
    /// <param name="message">The message: what failed, where, and how to correct it.</param>
    /// <param name="innerException">The exception that caused this one.</param>
    public CompressorException(string message, Exception? innerException)
        : base(message, innerException)
    {
    }
}
