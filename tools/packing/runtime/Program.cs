// The program of which the runtime is made; it is not shipped.
System.Console.Out.Flush();
